// A report sent to the window: the preview shows its pages one at a time and
// closes on "Fechar".
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "desktop/desktop.h"
#include "desktop/report_preview.h"
#include "shell/program.h"
#include "support/scratch_folder.h"

namespace mz::desktop {
namespace {

QPushButton* button(QWidget* dialog, const QString& text) {
  for (auto* b : dialog->findChildren<QPushButton*>())
    if (b->text() == text) return b;
  return nullptr;
}

QString page_count(QWidget* dialog) {
  for (auto* label : dialog->findChildren<QLabel*>())
    if (label->text().startsWith("Página")) return label->text();
  return {};
}

// Pages through a two-page report; a failure here leaves the dialog to the caller to close.
void page_through(ReportPreview* preview) {
  EXPECT_EQ(preview->windowTitle(), "Recibo");
  EXPECT_EQ(page_count(preview), "Página 1 de 2");
  QPushButton* previous = button(preview, "<");
  QPushButton* next = button(preview, ">");
  ASSERT_TRUE(previous && next);
  EXPECT_FALSE(previous->isEnabled()) << "no page before the first";
  QTest::mouseClick(next, Qt::LeftButton);
  EXPECT_EQ(page_count(preview), "Página 2 de 2");
  EXPECT_FALSE(next->isEnabled()) << "no page after the last";
  EXPECT_TRUE(previous->isEnabled());
  const QLabel* image = nullptr;
  for (auto* label : preview->findChildren<QLabel*>())
    if (!label->pixmap().isNull()) image = label;
  ASSERT_NE(image, nullptr);
  // The page at the screen's resolution: A4 is 210 mm across.
  EXPECT_NEAR(image->pixmap().deviceIndependentSize().width(), 210 / 25.4 * preview->logicalDpiX(), 1);
  EXPECT_NE(button(preview, "&Imprimir"), nullptr);
}

TEST(DesktopReport, PreviewPagesThroughTheReportAndCloses) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  print::Document document;
  document.title = "Recibo";
  document.pages = {print::Page{{print::TextItem{10, 10, 0, "Recebemos de José"}}},
                    print::Page{{print::BoxItem{10, 10, 190, 277, 1}}}};
  print::ReportRequest request;
  request.destination = print::Destination::Window;

  bool shown = false;
  QTimer driver;
  QObject::connect(&driver, &QTimer::timeout, [&] {
    auto* preview = dynamic_cast<ReportPreview*>(QApplication::activeModalWidget());
    if (!preview || QApplication::activeWindow() != preview) return;
    driver.stop();
    shown = true;
    page_through(preview);
    if (QPushButton* close = button(preview, "&Fechar")) QTest::mouseClick(close, Qt::LeftButton);
    EXPECT_FALSE(preview->isVisible()) << "Fechar closed the preview";
    preview->reject();
  });
  driver.start(20);
  desktop.show_report(request, document);
  EXPECT_TRUE(shown);
}

}  // namespace
}  // namespace mz::desktop
