#pragma once
// Puts laid-out pages on paper: a PDF file, or page images for the preview
// and the printer. Text is drawn in Liberation Sans, whose metrics are those
// of Arial, the font the documents were designed for.
#include <cstdint>
#include <string>
#include <vector>

#include "print/page.h"

namespace mz::print {

inline constexpr const char* kFontFamily = "Liberation Sans";

// Throws Error when the file cannot be written.
void write_pdf(const Document& document, const std::string& path);

// One page as an image: 32-bit pixels, premultiplied ARGB in native byte
// order (cairo's and Qt's ARGB32_Premultiplied), white background.
struct PageImage {
  int width = 0, height = 0, stride = 0;  // stride in bytes
  std::vector<uint8_t> pixels;
};
PageImage render_page(const Document& document, size_t page, double dpi);

// The width of a text in millimetres, as it will be drawn.
double text_width(const std::string& text, double size, bool bold);

}  // namespace mz::print
