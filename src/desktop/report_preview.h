#pragma once
// The preview window of a report: one page at a time at the screen's
// resolution, the page count, and buttons to print it and to close.
#include <QDialog>
#include <exception>
#include <functional>

#include "print/page.h"

class QLabel;
class QPushButton;

namespace mz::desktop {

class ReportPreview : public QDialog {
 public:
  // `print` sends the document to the current printer.
  ReportPreview(const print::Document& document, std::function<void()> print, QWidget* parent = nullptr);

  void show_page(size_t page);
  size_t page() const { return page_; }
  // A print from the preview that failed closes it; the caller raises the
  // failure, as a print straight to the printer would.
  std::exception_ptr failure() const { return failure_; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void print();

  const print::Document& document_;
  std::function<void()> print_;
  std::exception_ptr failure_;
  size_t page_ = 0;
  QLabel* image_;
  QLabel* count_;
  QPushButton* previous_;
  QPushButton* next_;
};

}  // namespace mz::desktop
