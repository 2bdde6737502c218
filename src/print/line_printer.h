#pragma once
// The documents the program draws itself on the system printer (tickets, the
// day closing): print statements of text and print columns, pages, and the
// end of the document. Kept as text lines, so that a test reads them back and
// the front end renders them in the chosen font.
#include <string>
#include <string_view>
#include <vector>

#include "print/page.h"

namespace mz::print {

struct PrintedDocument {
  std::string font = "ARIAL";
  double size = 10;
  std::vector<std::vector<std::string>> pages;  // lines of each page
  // For each line of each page, the character positions (0-based) where a
  // print column placed the text that follows, so that the columns line up
  // on paper in a proportional font.
  std::vector<std::vector<std::vector<size_t>>> column_starts;
};

// The document on A4 sheets: each piece of a line at its print column, a
// column being the font's average character width.
Document lay_out_printed(const PrintedDocument& printed);

class LinePrinter {
 public:
  void set_font(std::string name, double size);
  // Pieces of one print statement: text at the current position, or a move
  // to a print column (1-based; past it, the column on the next line).
  LinePrinter& text(std::string_view s);
  LinePrinter& tab(int column);
  // Ends the print statement: the next text starts a new line.
  void end_line();
  void new_page();
  // Closes the document and hands it over; the printer starts afresh.
  PrintedDocument end_doc();

 private:
  double printed_position() const;

  PrintedDocument doc_;
  std::vector<std::string> page_;
  std::vector<std::vector<size_t>> page_starts_;
  std::string line_;
  std::vector<size_t> line_starts_;
  bool open_line_ = false;
};

// Text straight to a printer port: each line preceded by the control bytes
// the document names (27, 15: condensed mode) and ended by CR LF, in the
// printer's old code page.
class RawPort {
 public:
  explicit RawPort(std::string prefix) : prefix_(std::move(prefix)) {}
  void line(std::string_view text);
  const std::string& bytes() const { return bytes_; }

 private:
  std::string prefix_;
  std::string bytes_;
};

}  // namespace mz::print
