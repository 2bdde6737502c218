#include "ui/menu.h"

#include "ui/keys.h"

namespace mz::ui {

void add_menu_items(Form& form, const std::vector<MenuEntry>& entries) {
  for (const MenuEntry& entry : entries) {
    Control& item = form.add(entry.name, ControlKind::MenuItem, entry.caption);
    item.shortcut = entry.f_key ? key::kF1 + entry.f_key - 1 : 0;
    item.on_click = entry.action;
  }
}

void follow_pages(Form& form, const char* tabs) {
  Control& pages = form[tabs];
  for (const auto& c : form.controls()) {
    if ((!c->is_entry() && c->kind() != ControlKind::Grid) || c->page == kOutsideTabs) continue;
    std::function<void()> own = c->on_got_focus;
    const int page = c->page;
    c->on_got_focus = [&pages, page, own] {
      if (pages.list_index != page) pages.set_list_index(page);
      if (own) own();
    };
  }
}

}  // namespace mz::ui
