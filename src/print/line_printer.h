#pragma once
// The documents the program draws itself on the system printer (tickets, the
// day closing): print statements of text and print columns, pages, and the
// end of the document. Kept as text lines, so that a test reads them back and
// the front end renders them in the chosen font.
#include <string>
#include <string_view>
#include <vector>

namespace mz::print {

struct PrintedDocument {
  std::string font = "ARIAL";
  double size = 10;
  std::vector<std::vector<std::string>> pages;  // lines of each page
};

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
  PrintedDocument doc_;
  std::vector<std::string> page_;
  std::string line_;
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
