#pragma once
// A screen's menu items, many of them answering a function key from any field.
#include <functional>
#include <vector>

#include "ui/form.h"

namespace mz::ui {

struct MenuEntry {
  const char* name;
  const char* caption;
  int f_key;  // 1 for F1 ... 12 for F12; 0 for an item with no key
  std::function<void()> action;
};

void add_menu_items(Form& form, const std::vector<MenuEntry>& entries);

// On a screen with tabs, a field that takes the focus brings its page to the
// front, so the keyboard never works on a page out of sight.
void follow_pages(Form& form, const char* tabs = "SSTab1");

}  // namespace mz::ui
