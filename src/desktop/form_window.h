#pragma once
// One screen drawn with Qt widgets, one widget a control.
#include <QWidget>
#include <map>

#include "ui/form.h"

namespace mz::desktop {

class Desktop;

class FormWindow : public QWidget {
 public:
  FormWindow(Desktop& desktop, ui::Form& form);

  ui::Form& form() const { return form_; }
  QWidget* widget(const ui::Control& control) const;
  // Copies the controls' state into the widgets.
  void refresh();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* make_widget(ui::Control& control);
  void watch(QWidget* widget, ui::Control& control);
  bool forward_key(ui::Control& control, QKeyEvent* key);

  Desktop& desktop_;
  ui::Form& form_;
  std::map<const ui::Control*, QWidget*> widgets_;
  std::map<QObject*, ui::Control*> controls_;
};

}  // namespace mz::desktop
