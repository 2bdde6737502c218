#pragma once
// One screen drawn with Qt widgets, one widget a control.
#include <QWidget>
#include <map>
#include <string>
#include <vector>

class QLabel;
class QVBoxLayout;

#include "ui/form.h"

namespace mz::desktop {

class Desktop;

class FormWindow : public QWidget {
 public:
  FormWindow(Desktop& desktop, ui::Form& form);

  ui::Form& form() const { return form_; }
  QWidget* widget(const ui::Control& control) const;
  // A screen with a grid takes the whole display: the grid gets the room.
  bool has_grid() const;
  // Copies the controls' state into the widgets.
  void refresh();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  // Keys that reach the window itself: a screen with no field in focus.
  void keyPressEvent(QKeyEvent* event) override;
  // A window that was just mapped can take the activation it was refused
  // while it was still unmapped.
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* make_widget(ui::Control& control);
  QWidget* with_buttons_beside(QWidget* field, size_t& i);
  QWidget* option_row(size_t& i);
  static void show_picture(QLabel* label, const std::string& text, int size);
  void watch(QWidget* widget, ui::Control& control);
  bool forward_key(ui::Control& control, QKeyEvent* key);
  bool switching_page_ = false;

  Desktop& desktop_;
  ui::Form& form_;
  std::map<ui::Control*, QWidget*> widgets_;
  std::map<const ui::Control*, std::vector<std::string>> shown_items_;  // what each combo's or list's widget lists
  std::map<const ui::Control*, std::pair<std::vector<std::string>, std::vector<uint32_t>>> shown_cells_;
  std::map<QObject*, ui::Control*> controls_;
};

}  // namespace mz::desktop
