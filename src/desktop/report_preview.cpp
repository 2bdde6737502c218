#include "desktop/report_preview.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "desktop/printing.h"
#include "print/render.h"

namespace mz::desktop {

ReportPreview::ReportPreview(const print::Document& document, std::function<void()> print, QWidget* parent)
    : QDialog(parent), document_(document), print_(std::move(print)) {
  setWindowTitle(document.title.empty() ? QString("Visualização") : QString::fromStdString(document.title));
  auto* scroll = new QScrollArea;
  scroll->setAlignment(Qt::AlignCenter);
  scroll->setBackgroundRole(QPalette::Dark);
  image_ = new QLabel;
  scroll->setWidget(image_);
  previous_ = new QPushButton("<");
  next_ = new QPushButton(">");
  count_ = new QLabel;
  auto* print_button = new QPushButton("&Imprimir");
  auto* close_button = new QPushButton("&Fechar");
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(previous_);
  buttons->addWidget(count_);
  buttons->addWidget(next_);
  buttons->addStretch();
  buttons->addWidget(print_button);
  buttons->addWidget(close_button);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(scroll);
  layout->addLayout(buttons);
  connect(previous_, &QPushButton::clicked, this, [this] { show_page(page_ - 1); });
  connect(next_, &QPushButton::clicked, this, [this] { show_page(page_ + 1); });
  connect(print_button, &QPushButton::clicked, this, &ReportPreview::print);
  connect(close_button, &QPushButton::clicked, this, &QDialog::accept);
  close_button->setDefault(true);
  show_page(0);
  // As tall as the screen allows, as wide as a page.
  const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
  resize(std::min(area.width(), image_->width() + 60), area.height() * 9 / 10);
}

void ReportPreview::show_page(size_t page) {
  const size_t pages = document_.pages.size();
  if (pages && page >= pages) return;  // past either end
  page_ = page;
  count_->setText(QString("Página %1 de %2").arg(pages ? page + 1 : 0).arg(pages));
  previous_->setEnabled(page > 0);
  next_->setEnabled(page + 1 < pages);
  if (!pages) return;
  const double ratio = devicePixelRatioF();
  QPixmap pixmap =
      QPixmap::fromImage(to_qimage(print::render_page(document_, page, logicalDpiX() * ratio)));
  pixmap.setDevicePixelRatio(ratio);
  image_->setPixmap(pixmap);
  image_->adjustSize();
}

void ReportPreview::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  activateWindow();  // no window manager does it on a bare X server
}

void ReportPreview::print() {
  try {
    print_();
  } catch (...) {
    failure_ = std::current_exception();
    reject();
  }
}

}  // namespace mz::desktop
