#include "desktop/printing.h"

#include <QPageSize>
#include <QPainter>
#include <QPrinter>

#include <algorithm>

#include "core/error.h"

namespace mz::desktop {
namespace {

// Pages go to the printer as images of this resolution at most: sharp for
// text and barcodes, and an A4 page stays some 35 MB.
constexpr int kMaxDpi = 300;

}  // namespace

QImage to_qimage(const print::PageImage& page) {
  return QImage(page.pixels.data(), page.width, page.height, page.stride, QImage::Format_ARGB32_Premultiplied).copy();
}

void print_pages(const print::Document& document, const QString& printer_name) {
  if (document.pages.empty()) return;
  QPrinter printer(QPrinter::HighResolution);
  // Chosen before the page is set up: a change of printer resets the page.
  if (!printer_name.isEmpty()) printer.setPrinterName(printer_name);
  printer.setDocName(QString::fromStdString(document.title));
  printer.setFullPage(true);  // the pages carry their own margins
  const double width = document.width, height = document.height;
  printer.setPageSize(QPageSize(QSizeF(std::min(width, height), std::max(width, height)), QPageSize::Millimeter));
  printer.setPageOrientation(width > height ? QPageLayout::Landscape : QPageLayout::Portrait);
  QPainter painter;
  if (!painter.begin(&printer)) throw Error(482, "Erro de impressora.");
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const double dpi = std::min(printer.resolution(), kMaxDpi);
  const double device_per_mm = printer.resolution() / 25.4;
  const QRectF sheet(0, 0, width * device_per_mm, height * device_per_mm);
  for (size_t p = 0; p < document.pages.size(); ++p) {
    if (p) printer.newPage();
    painter.drawImage(sheet, to_qimage(print::render_page(document, p, dpi)));
  }
  painter.end();
}

}  // namespace mz::desktop
