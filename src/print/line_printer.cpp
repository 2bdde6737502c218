#include "print/line_printer.h"

#include "core/text.h"

namespace mz::print {

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
  size_t at = len(line_) + 1;  // the print position, 1-based
  if (at > static_cast<size_t>(column)) {
    page_.push_back(line_);
    line_.clear();
    at = 1;
  }
  line_ += space(static_cast<size_t>(column) - at);
  open_line_ = true;
  return *this;
}

void LinePrinter::end_line() {
  page_.push_back(line_);
  line_.clear();
  open_line_ = false;
}

void LinePrinter::new_page() {
  if (open_line_) end_line();
  doc_.pages.push_back(std::move(page_));
  page_.clear();
}

PrintedDocument LinePrinter::end_doc() {
  if (open_line_ || !page_.empty()) new_page();
  PrintedDocument done = std::move(doc_);
  doc_ = PrintedDocument{};
  return done;
}

void RawPort::line(std::string_view text) { bytes_ += prefix_ + to_windows_1252(text) + "\r\n"; }

}  // namespace mz::print
