#include "print/render.h"

#include <gtest/gtest.h>

#include <cairo.h>

#include <cstring>

#include "core/text.h"
#include "support/errors.h"
#include "support/pdf_reader.h"
#include "support/scratch_folder.h"

namespace mz::print {
namespace {

constexpr double kMmPerInch = 25.4;
constexpr double kEmPerPoint = kMmPerInch / 72;  // millimetres of one em at 1 pt

uint32_t pixel(const PageImage& image, int x, int y) {
  uint32_t p;
  std::memcpy(&p, image.pixels.data() + static_cast<size_t>(y) * image.stride + static_cast<size_t>(x) * 4, 4);
  return p;
}

bool dark(const PageImage& image, int x, int y) {
  const uint32_t p = pixel(image, x, y);
  return ((p >> 16 & 0xFF) + (p >> 8 & 0xFF) + (p & 0xFF)) < 3 * 128;
}

int px(double mm, double dpi) { return static_cast<int>(mm / kMmPerInch * dpi); }
double mm(int px, double dpi) { return (px + 0.5) * kMmPerInch / dpi; }

// The extent of the ink inside a region, in millimetres.
struct Ink {
  double left = 1e9, right = -1, top = 1e9, bottom = -1;
  bool any() const { return right >= 0; }
};
Ink ink(const PageImage& image, double dpi, double x1, double y1, double x2, double y2) {
  Ink found;
  for (int y = px(y1, dpi); y < px(y2, dpi); ++y)
    for (int x = px(x1, dpi); x < px(x2, dpi); ++x)
      if (dark(image, x, y)) {
        found.left = std::min(found.left, mm(x, dpi));
        found.right = std::max(found.right, mm(x, dpi));
        found.top = std::min(found.top, mm(y, dpi));
        found.bottom = std::max(found.bottom, mm(y, dpi));
      }
  return found;
}

Document one_page(std::vector<Item> items, double width = 210, double height = 297) {
  Document document;
  document.width = width;
  document.height = height;
  document.pages.push_back(Page{std::move(items)});
  return document;
}

TEST(RenderPdf, PagesSizeAndTextComeBack) {
  if (!testing::have_program("pdfinfo") || !testing::have_program("pdftotext")) GTEST_SKIP() << "poppler-utils missing";
  Document document;
  document.title = "Relatório de Vendas";
  document.width = 297;  // landscape
  document.height = 210;
  document.pages.push_back(Page{{
      TextItem{10, 10, 0, "Confecções São João Ltda", 14, true},
      TextItem{10, 20, 100, "Página 1 de 2", 9, false, Align::Right},
      LineItem{10, 30, 287, 30, 0.5},
      BoxItem{10, 40, 100, 30, 0.3},
      BarcodeItem{20, 80, 35, 9, "*000709*"},
  }});
  document.pages.push_back(Page{{
      TextItem{10, 10, 0, "Calçados Ávila & Cia", 9},
      TextItem{10, 20, 50, "1.234,56", 9, false, Align::Center},
  }});
  testing::TempFolder folder;
  const auto path = folder.path() / "vendas.pdf";
  write_pdf(document, path.string());

  const testing::PdfInfo info = testing::pdf_info(path);
  EXPECT_EQ(info.pages, 2);
  EXPECT_NEAR(info.width, 297, 0.01);
  EXPECT_NEAR(info.height, 210, 0.01);
  const std::string text = testing::pdf_text(path);
  const size_t page_break = text.find('\f');
  ASSERT_NE(page_break, std::string::npos);
  const std::string first = text.substr(0, page_break), second = text.substr(page_break);
  for (const char* expected : {"Confecções São João Ltda", "Página 1 de 2"})
    EXPECT_NE(first.find(expected), std::string::npos) << expected << " on page 1 of:\n" << text;
  for (const char* expected : {"Calçados Ávila & Cia", "1.234,56"})
    EXPECT_NE(second.find(expected), std::string::npos) << expected << " on page 2 of:\n" << text;
}

TEST(RenderPdf, AnUnwritablePathIsAnError) {
  EXPECT_EQ(testing::error_number([] { write_pdf(one_page({}), "/nonexistent-folder/relatorio.pdf"); }), 75);
}

TEST(RenderPage, SizeFollowsTheSheetAndTheResolution) {
  struct Case {
    double width, height, dpi;
    int pixels_across, pixels_down;
  } cases[] = {
      {210, 297, 72, 595, 842},     // A4 at the PDF's own unit
      {297, 210, 150, 1754, 1240},  // landscape
      {100, 50, 300, 1181, 591},    // a label sheet at printer resolution
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.dpi);
    const PageImage image = render_page(one_page({}, c.width, c.height), 0, c.dpi);
    EXPECT_EQ(image.width, c.pixels_across);
    EXPECT_EQ(image.height, c.pixels_down);
    EXPECT_GE(image.stride, image.width * 4);
    ASSERT_EQ(image.pixels.size(), static_cast<size_t>(image.stride) * image.height);
    bool all_white = true;
    for (int y = 0; y < image.height; y += 7)
      for (int x = 0; x < image.width; x += 7) all_white = all_white && pixel(image, x, y) == 0xFFFFFFFF;
    EXPECT_TRUE(all_white) << "an empty page is white paper";
  }
}

TEST(RenderPage, ItemsPutInkWhereTheyLie) {
  constexpr double dpi = 100;
  const Document document = one_page({
      BoxItem{20, 30, 60, 40, 1},
      LineItem{10, 100, 190, 100, 0.5},
      BarcodeItem{20, 150, 60, 20, "000709"},
      TextItem{20, 200, 0, "S\xE3o Jo\xE3o", 12},  // Windows-1252 bytes, not UTF-8: drawn, and the page goes on
      BoxItem{20, 250, 10, 10, 1},
  });
  const PageImage image = render_page(document, 0, dpi);
  auto dark_at = [&](double x, double y) { return dark(image, px(x, dpi), px(y, dpi)); };
  EXPECT_TRUE(dark_at(20, 50)) << "box: left side";
  EXPECT_TRUE(dark_at(80, 50)) << "box: right side";
  EXPECT_TRUE(dark_at(50, 30)) << "box: top";
  EXPECT_FALSE(dark_at(50, 50)) << "box: hollow";
  EXPECT_TRUE(dark_at(100, 100)) << "line";
  EXPECT_FALSE(dark_at(100, 102)) << "beside the line";
  EXPECT_FALSE(ink(image, dpi, 20, 150, 24, 170).any()) << "barcode: left quiet zone";
  EXPECT_FALSE(ink(image, dpi, 76, 150, 80, 170).any()) << "barcode: right quiet zone";
  const Ink bars = ink(image, dpi, 20, 150, 80, 170);
  EXPECT_NEAR(bars.top, 150, 0.3) << "the bars fill the box's height";
  EXPECT_NEAR(bars.bottom, 170, 0.3);
  EXPECT_TRUE(ink(image, dpi, 20, 200, 50, 206).any()) << "text";
  EXPECT_TRUE(dark_at(20, 255)) << "the item after the odd text";
  EXPECT_FALSE(ink(image, dpi, 100, 140, 200, 297).any()) << "nothing where nothing was put";
}

TEST(RenderText, AlignsInItsBoxAndHangsFromTheTopOfTheLine) {
  constexpr double dpi = 300, size = 12, x = 20, y = 20, box = 100;
  const std::string text = "MOSTRUZ";
  const double width = text_width(text, size, false);
  struct Case {
    Align align;
    double start;
  } cases[] = {{Align::Left, x}, {Align::Center, x + (box - width) / 2}, {Align::Right, x + box - width}};
  for (const Case& c : cases) {
    SCOPED_TRACE(static_cast<int>(c.align));
    const PageImage image = render_page(one_page({TextItem{x, y, box, text, size, false, c.align}}), 0, dpi);
    const Ink found = ink(image, dpi, 0, 0, 210, 60);
    ASSERT_TRUE(found.any());
    // The capitals' ink lies within the advance, less their side bearings.
    EXPECT_NEAR(found.left, c.start, 0.4);
    EXPECT_NEAR(found.right, c.start + width, 0.4);
    // Capitals stand on the baseline, one ascent (0.905 em) below the top of the line.
    EXPECT_NEAR(found.bottom, y + 0.905 * size * kEmPerPoint, 0.15);
    EXPECT_GT(found.top, y);
  }
}

TEST(RenderText, WidthsAreArialsAsDrawn) {
  const double em10 = 10 * kEmPerPoint;
  struct Case {
    std::string text;
    double size;
    bool bold;
    double width;  // millimetres
  } cases[] = {
      {"", 10, false, 0},
      {"0000000000", 10, false, 10 * 1139.0 / 2048 * em10},  // Arial's digits: 1139 units of 2048
      {"0000000000", 10, true, 10 * 1139.0 / 2048 * em10},   // the same width in bold, so columns of figures align
      {"0000000000", 20, false, 20 * 1139.0 / 2048 * em10},
      {"m", 10, false, 1706.0 / 2048 * em10},
      {"m", 10, true, 1821.0 / 2048 * em10},
      {"Ação", 10, false, (1366.0 + 1024 + 2 * 1139) / 2048 * em10},  // accents take their letter's width
      {"A\xE7\xE3o", 10, false, (1366.0 + 1024 + 2 * 1139) / 2048 * em10},  // Windows-1252 bytes read as that code page
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text + (c.bold ? " bold" : ""));
    EXPECT_NEAR(text_width(c.text, c.size, c.bold), c.width, 0.001);
  }
}

// Widths are summed from remembered character advances; they must equal
// cairo's measure of the whole text, in every size and weight asked in turn.
TEST(RenderText, WidthsEqualCairosMeasureOfTheWholeText) {
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 1, 1);
  cairo_t* cr = cairo_create(surface);
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  cairo_set_font_options(cr, options);
  const std::string texts[] = {"R$ 1.234,56", "mmmm iiii", "CONTAS A RECEBER", "Ação São João", "A\xE7\xE3o", "W"};
  for (const double size : {8.0, 9.0, 9.5, 12.0})
    for (const bool bold : {false, true, false})
      for (const std::string& text : texts) {
        SCOPED_TRACE(text + " " + std::to_string(size) + (bold ? " bold" : ""));
        cairo_select_font_face(cr, kFontFamily, CAIRO_FONT_SLANT_NORMAL,
                               bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
        cairo_set_font_size(cr, size * kEmPerPoint);
        cairo_text_extents_t extents;
        cairo_text_extents(cr, ensure_utf8(text).c_str(), &extents);
        EXPECT_EQ(text_width(text, size, bold), extents.x_advance);
      }
  cairo_font_options_destroy(options);
  cairo_destroy(cr);
  cairo_surface_destroy(surface);
}

}  // namespace
}  // namespace mz::print
