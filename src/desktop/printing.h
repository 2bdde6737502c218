#pragma once
// Printing through the system's print service.
#include <QImage>
#include <QString>

#include "print/render.h"

namespace mz::desktop {

// Laid-out pages to a printer, the system's default when the name is empty.
// Throws Error 482 when the printer cannot be opened.
void print_pages(const print::Document& document, const QString& printer_name);

// A rendered page for Qt, sharing no memory with the image.
QImage to_qimage(const print::PageImage& page);

}  // namespace mz::desktop
