#pragma once
// Showing a screen on the desktop as the clerk meets it, and pressing a key
// in one of its fields.
#include <QApplication>
#include <QTest>

#include "desktop/desktop.h"
#include "desktop/form_window.h"

namespace mz::desktop {

// The screen in front with the keyboard.
inline FormWindow* show_active(Desktop& desktop, const char* name) {
  ui::Form& form = desktop.runtime().show(name);
  desktop.sync();
  FormWindow* window = desktop.window(form);
  window->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  return window;
}

inline void press_in(Desktop& desktop, ui::Control& field, Qt::Key key) {
  desktop.runtime().set_focus(field);
  desktop.sync();
  QTest::keyClick(QApplication::focusWidget(), key);
}

}  // namespace mz::desktop
