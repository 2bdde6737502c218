#include "print/line_printer.h"

#include "core/text.h"
#include "print/render.h"

namespace mz::print {
namespace {

constexpr double kMmPerPoint = 25.4 / 72;

// One print column: the average character width of Arial (0.441 em), in mm.
double column_width(double size) { return size * kMmPerPoint * 0.441; }

}  // namespace

void LinePrinter::set_font(std::string name, double size) {
  doc_.font = std::move(name);
  doc_.size = size;
}

LinePrinter& LinePrinter::text(std::string_view s) {
  line_ += s;
  open_line_ = true;
  return *this;
}

LinePrinter& LinePrinter::tab(int column) {
  size_t at = len(line_) + 1;  // the print position in characters, 1-based
  if (at > static_cast<size_t>(column) || printed_position() > column) {
    end_line();
    at = 1;
  }
  line_ += space(static_cast<size_t>(column) - at);
  line_starts_.push_back(static_cast<size_t>(column) - 1);
  open_line_ = true;
  return *this;
}

// Where the print head stands on paper, in print columns (1-based): the text
// since the last print column is measured in the font, so a run of wide
// capitals pushes the next column onto a new line as it would on paper.
double LinePrinter::printed_position() const {
  const size_t start = line_starts_.empty() ? 0 : line_starts_.back();
  const std::u32string chars = to_u32(line_);
  const std::string piece = start < chars.size() ? to_utf8(chars.substr(start)) : std::string();
  return static_cast<double>(start) + text_width(piece, doc_.size, false) / column_width(doc_.size) + 1;
}

void LinePrinter::end_line() {
  page_.push_back(line_);
  page_starts_.push_back(line_starts_);
  line_.clear();
  line_starts_.clear();
  open_line_ = false;
}

void LinePrinter::new_page() {
  if (open_line_) end_line();
  doc_.pages.push_back(std::move(page_));
  doc_.column_starts.push_back(std::move(page_starts_));
  page_.clear();
  page_starts_.clear();
}

PrintedDocument LinePrinter::end_doc() {
  if (open_line_ || !page_.empty()) new_page();
  PrintedDocument done = std::move(doc_);
  doc_ = PrintedDocument{};
  return done;
}

void RawPort::line(std::string_view text) { bytes_ += prefix_ + to_windows_1252(text) + "\r\n"; }


Document lay_out_printed(const PrintedDocument& printed) {
  constexpr double kMargin = 10;
  const double column = column_width(printed.size);
  const double line_height = printed.size * kMmPerPoint * 1.15;
  Document doc;
  for (size_t p = 0; p < printed.pages.size(); ++p) {
    Page& page = doc.pages.emplace_back();
    double y = kMargin;
    for (size_t l = 0; l < printed.pages[p].size(); ++l, y += line_height) {
      std::u32string line = to_u32(printed.pages[p][l]);
      std::vector<size_t> starts = {0};
      if (p < printed.column_starts.size() && l < printed.column_starts[p].size())
        for (size_t s : printed.column_starts[p][l])
          if (s > starts.back() && s < line.size()) starts.push_back(s);
      for (size_t i = 0; i < starts.size(); ++i) {
        size_t end = i + 1 < starts.size() ? starts[i + 1] : line.size();
        std::string piece = rtrim(to_utf8(line.substr(starts[i], end - starts[i])));
        if (piece.empty()) continue;
        page.items.emplace_back(std::in_place_type<TextItem>, kMargin + static_cast<double>(starts[i]) * column, y, 0.0,
                                piece, printed.size, false, Align::Left);
      }
    }
  }
  return doc;
}

}  // namespace mz::print
