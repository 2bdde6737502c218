#pragma once
// What outside tools read back from a PDF the program wrote, as a reader or a
// barcode scanner would: the page count, the text, the barcodes. Each call
// throws std::runtime_error when its tool fails.
#include <filesystem>
#include <string>
#include <vector>

namespace mz::testing {

// Whether a program is on the path; tests skip when theirs is missing.
bool have_program(const std::string& name);

struct PdfInfo {
  int pages = 0;
  double width = 0, height = 0;  // the first page, in millimetres
};
PdfInfo pdf_info(const std::filesystem::path& pdf);      // pdfinfo
std::string pdf_text(const std::filesystem::path& pdf);  // pdftotext: UTF-8, a form feed after each page
// The codes zbarimg decodes on the pages rasterised at `dpi`, page after
// page; a code printed twice on one page is read once.
std::vector<std::string> read_barcodes(const std::filesystem::path& pdf, int dpi = 300);

}  // namespace mz::testing
