#include "print/render.h"

#include <cairo-pdf.h>
#include <cairo.h>

#include <cmath>
#include <map>
#include <memory>
#include <unordered_map>
#include <utility>
#include <variant>

#include "core/error.h"
#include "core/text.h"
#include "print/barcode.h"

namespace mz::print {
namespace {

constexpr double kMmPerInch = 25.4;
constexpr double kMmPerPoint = kMmPerInch / 72;

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using Context = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

// Pages are drawn in millimetres, whatever the surface's own unit.
Context millimetre_context(cairo_surface_t* surface, double units_per_mm) {
  Context cr(cairo_create(surface), cairo_destroy);
  cairo_scale(cr.get(), units_per_mm, units_per_mm);
  return cr;
}

// Unhinted metrics, so that a text is as wide in the preview as on paper and
// the layout measures what is drawn.
void set_font(cairo_t* cr, double size, bool bold) {
  cairo_select_font_face(cr, kFontFamily, CAIRO_FONT_SLANT_NORMAL,
                         bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(cr, size * kMmPerPoint);
  std::unique_ptr<cairo_font_options_t, decltype(&cairo_font_options_destroy)> options(cairo_font_options_create(),
                                                                                       cairo_font_options_destroy);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_set_font_options(cr, options.get());
}

// Draws a page's items on one context. Pages hold thousands of texts in a
// few sizes, so the font is set again only when the size or weight changes.
class Painter {
 public:
  explicit Painter(cairo_t* cr) : cr_(cr) {}

  void operator()(const TextItem& item) {
    if (item.text.empty()) return;
    // A stray byte would put cairo in an error state and blank the rest of the page.
    const std::string text = ensure_utf8(item.text);
    use_font(item.size, item.bold);
    double x = item.x;
    if (item.width > 0 && item.align != Align::Left) {
      cairo_text_extents_t extents;
      cairo_text_extents(cr_, text.c_str(), &extents);
      const double room = item.width - extents.x_advance;
      x += item.align == Align::Right ? room : room / 2;
    }
    cairo_move_to(cr_, x, item.y + ascent_);
    cairo_show_text(cr_, text.c_str());
  }

  void operator()(const LineItem& item) {
    cairo_set_line_width(cr_, item.width);
    cairo_move_to(cr_, item.x1, item.y1);
    cairo_line_to(cr_, item.x2, item.y2);
    cairo_stroke(cr_);
  }

  void operator()(const BoxItem& item) {
    cairo_set_line_width(cr_, item.line_width);
    cairo_rectangle(cr_, item.x, item.y, item.width, item.height);
    cairo_stroke(cr_);
  }

  void operator()(const BarcodeItem& item) {
    for (const Bar& bar : code39_bars(item.data))
      cairo_rectangle(cr_, item.x + bar.x * item.width, item.y + bar.y * item.height, bar.width * item.width,
                      bar.height * item.height);
    cairo_fill(cr_);
  }

  void page(const Page& page) {
    cairo_set_source_rgb(cr_, 0, 0, 0);
    for (const Item& item : page.items) std::visit(*this, item);
  }

 private:
  void use_font(double size, bool bold) {
    if (has_font_ && size == size_ && bold == bold_) return;
    set_font(cr_, size, bold);
    cairo_font_extents_t font;
    cairo_font_extents(cr_, &font);
    has_font_ = true;
    size_ = size;
    bold_ = bold;
    ascent_ = font.ascent;
  }

  cairo_t* cr_;
  bool has_font_ = false, bold_ = false;
  double size_ = 0, ascent_ = 0;
};

int pixels(double mm, double dpi) { return static_cast<int>(std::lround(mm / kMmPerInch * dpi)); }

}  // namespace

void write_pdf(const Document& document, const std::string& path) {
  const double points_per_mm = 1 / kMmPerPoint;
  Surface surface(
      cairo_pdf_surface_create(path.c_str(), document.width * points_per_mm, document.height * points_per_mm),
      cairo_surface_destroy);
  cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, ensure_utf8(document.title).c_str());
  cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATOR, "Mostruz");
  {
    Context cr = millimetre_context(surface.get(), points_per_mm);
    Painter painter(cr.get());
    for (const Page& page : document.pages) {
      painter.page(page);
      cairo_show_page(cr.get());
    }
  }
  cairo_surface_finish(surface.get());
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
    throw Error(75, "Erro de acesso ao caminho/arquivo: " + path);
}

PageImage render_page(const Document& document, size_t page, double dpi) {
  const Page& content = document.pages.at(page);
  PageImage image;
  image.width = pixels(document.width, dpi);
  image.height = pixels(document.height, dpi);
  Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, image.width, image.height),
                  cairo_surface_destroy);
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) throw Error(7, "Memória insuficiente.");
  {
    Context cr = millimetre_context(surface.get(), dpi / kMmPerInch);
    cairo_set_source_rgb(cr.get(), 1, 1, 1);
    cairo_paint(cr.get());
    Painter(cr.get()).page(content);
  }
  cairo_surface_flush(surface.get());
  image.stride = cairo_image_surface_get_stride(surface.get());
  const uint8_t* data = cairo_image_surface_get_data(surface.get());
  image.pixels.assign(data, data + static_cast<size_t>(image.stride) * image.height);
  return image;
}

double text_width(const std::string& text, double size, bool bold) {
  // One scratch context per thread: measuring needs a surface but draws nothing.
  thread_local Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 1, 1), cairo_surface_destroy);
  thread_local Context cr(cairo_create(surface.get()), cairo_destroy);
  // The toy font API maps each character to one glyph and places it at the
  // sum of the advances before it, so a text's width is its characters'
  // advances added from the left: each character is asked of cairo once
  // per size and weight, and the sum is cairo's own to the last bit.
  thread_local std::map<std::pair<double, bool>, std::unordered_map<char32_t, double>> advances;
  auto& known = advances[{size, bold}];
  double width = 0;
  for (char32_t c : to_u32(ensure_utf8(text))) {
    if (c == 0) break;  // where cairo's text ends
    auto [at, added] = known.try_emplace(c);
    if (added) {
      set_font(cr.get(), size, bold);
      cairo_text_extents_t extents;
      cairo_text_extents(cr.get(), to_utf8(std::u32string(1, c)).c_str(), &extents);
      at->second = extents.x_advance;
    }
    width += at->second;
  }
  return width;
}

}  // namespace mz::print
