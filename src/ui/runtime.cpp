#include "ui/runtime.h"

#include <algorithm>

#include "core/error.h"
#include "core/input_helpers.h"
#include "core/text.h"
#include "store/names.h"
#include "ui/keys.h"

namespace mz::ui {

Runtime::~Runtime() {
  focused_ = nullptr;
  screens_.clear();
}

Runtime::Dispatch::~Dispatch() {
  if (--rt_.depth_ == 0) rt_.closed_.clear();
}

void Runtime::register_screen(const std::string& name, Factory factory) {
  screens_[store::lower_name(name)].factory = std::move(factory);
}

bool Runtime::knows_screen(std::string_view name) const { return find_entry(name) != nullptr; }

const Runtime::Entry* Runtime::find_entry(std::string_view name) const {
  auto it = screens_.find(store::lower_name(name));
  return it == screens_.end() ? nullptr : &it->second;
}

Runtime::Entry& Runtime::entry(std::string_view name) {
  auto it = screens_.find(store::lower_name(name));
  if (it == screens_.end()) throw Error(err::kInvalidProcedureCall, "A tela '" + std::string(name) + "' não existe.");
  return it->second;
}

Form& Runtime::screen(std::string_view name) {
  Entry& e = entry(name);
  if (!e.form) {
    e.form = e.factory(*this);
    if (e.form->on_load) e.form->on_load();
  }
  return *e.form;
}

Form& Runtime::show(std::string_view name) {
  Dispatch dispatch(*this);
  Form& form = screen(name);
  Entry& e = entry(name);
  e.shown = true;
  host_.screen_shown(form);
  activate(form);
  return form;
}

void Runtime::activate(Form& form) {
  Dispatch dispatch(*this);
  stack_.erase(std::remove(stack_.begin(), stack_.end(), &form), stack_.end());
  stack_.push_back(&form);
  bool was_active = active_ == &form;
  active_ = &form;
  if (!was_active && form.on_activate) form.on_activate();
  if (focused_ && &focused_->form() == &form) return;
  Control* target = form.last_focus && form.last_focus->can_take_focus() ? form.last_focus : form.next_in_tab_order(nullptr);
  if (target) set_focus(*target);
}

void Runtime::close(std::string_view name) {
  Dispatch dispatch(*this);
  Entry& e = entry(name);
  if (!e.form || e.closing) return;  // an Unload that ends the program closes the rest, not itself again
  e.closing = true;
  Form& form = *e.form;
  if (form.on_unload) form.on_unload();
  e.closing = false;
  bool had_focus = (focused_ && &focused_->form() == &form) || active_ == &form;
  if (focused_ && &focused_->form() == &form) focused_ = nullptr;
  if (entering_ && &entering_->form() == &form) entering_ = nullptr;
  if (active_ == &form) active_ = nullptr;
  stack_.erase(std::remove(stack_.begin(), stack_.end(), &form), stack_.end());
  if (e.shown) host_.screen_closed(form);
  e.shown = false;
  closed_.push_back(std::move(e.form));
  // The screen below comes to the front, unless the program is ending.
  if (had_focus && !stack_.empty() && !ended_) activate(*stack_.back());
}

bool Runtime::is_shown(std::string_view name) const {
  const Entry* e = find_entry(name);
  return e && e->shown;
}

void Runtime::apply_leave_rule(Control& c) {
  if (c.leave_rule == LeaveRule::Date) c.set_text(date_field_rule(c.text(), host_.today()));
  if (c.leave_rule == LeaveRule::Money) c.set_text(money_field_rule(c.text()));
}

void Runtime::set_focus(Control& control) {
  Dispatch dispatch(*this);
  if (focused_ == &control) return;
  Control* old = focused_;
  // A control that was about to take the focus when a LostFocus handler
  // sent it elsewhere never had it, so it has nothing to lose.
  if (old == entering_) old = nullptr;
  focused_ = &control;
  entering_ = &control;
  active_ = &control.form();
  control.form().last_focus = &control;
  if (old) {
    if (old->is_entry()) old->back_colour = kWhite;
    apply_leave_rule(*old);
    if (old->on_lost_focus) old->on_lost_focus();
  }
  if (focused_ != &control) return;  // the old control's handler sent the focus elsewhere
  entering_ = nullptr;
  if (control.is_entry()) {
    control.sel_start = 0;
    control.sel_length = len(control.text());
    control.back_colour = kFocusColour;
    host_.wait_pointer(false);
  }
  if (control.on_got_focus) control.on_got_focus();
}

void Runtime::move_on(Control& from, bool backward) {
  if (Control* next = from.form().next_in_tab_order(&from, backward)) set_focus(*next);
}

// The arrow keys go round a group of options, setting each one they reach.
void Runtime::move_in_group(Control& from, bool backward) {
  std::vector<Control*> group;
  for (const auto& c : from.form().controls())
    if (c->kind() == ControlKind::OptionButton && c->group == from.group && c->can_take_focus()) group.push_back(c.get());
  auto at = std::find(group.begin(), group.end(), &from);
  if (group.size() < 2 || at == group.end()) return;
  size_t i = static_cast<size_t>(at - group.begin());
  click(*group[(i + (backward ? group.size() - 1 : 1)) % group.size()]);
}

void Runtime::press_key(int key, int shift) {
  Dispatch dispatch(*this);
  Control* c = focused_;
  Form* form = c ? &c->form() : active_;
  if (!form) return;
  if (form->key_preview && form->on_key_down) {
    form->on_key_down(key, shift);
    if (key == 0) return;
  }
  if (key == key::kTab) {
    if (c) move_on(*c, shift != 0);
    return;
  }
  for (const auto& item : form->controls())
    if (item->kind() == ControlKind::MenuItem && item->shortcut == key && item->enabled) return click(*item);
  if (c && c->on_key_down) {
    c->on_key_down(key, shift);
    if (key == 0) return;
  }
  if (c && c->kind() == ControlKind::OptionButton && (key == key::kUp || key == key::kDown))
    return move_in_group(*c, key == key::kUp);
  if (key == key::kEnter || key == key::kBackspace || key == key::kEscape) type_char(static_cast<char32_t>(key));
}

void Runtime::type_char(char32_t ch) {
  Dispatch dispatch(*this);
  Control* c = focused_;
  if (!c) return;
  int key = static_cast<int>(ch);
  Form& form = c->form();
  if (form.key_preview && form.on_key_press) form.on_key_press(key);
  if (key == 0) return;
  if (c->on_key_press) c->on_key_press(key);
  if (focused_ != c) return;
  // Enter moves on after the field's own handler, whatever it did with the
  // key: the old screens posted a Tab and then dropped the Enter.
  if (ch == key::kEnter && c->enter_moves_on && !c->multi_line) return move_on(*c, false);
  if (key == key::kEnter && c->multi_line && c->is_entry()) key = '\n';
  if (key == key::kEnter) {
    if (c->kind() == ControlKind::Button) click(*c);
    return;
  }
  if (key == 0) return;
  // The space bar presses a button and sets an option or a check box.
  if (key == ' ' && (c->kind() == ControlKind::Button || c->kind() == ControlKind::OptionButton ||
                     c->kind() == ControlKind::CheckBox))
    return click(*c);
  if (!c->is_entry() || key == key::kEscape) return;
  if (c->kind() == ControlKind::MaskedBox && !c->mask.empty()) {
    if (key == key::kBackspace) erase_masked(*c);
    else type_masked(*c, static_cast<char32_t>(key));
    return;
  }
  std::string text = c->text();
  size_t start = std::min(c->sel_start, len(text));
  size_t length = std::min(c->sel_length, len(text) - start);
  if (key == key::kBackspace) {
    if (length == 0 && start > 0) {
      --start;
      length = 1;
    }
    c->set_text(left(text, start) + mid(text, start + length + 1));
    c->sel_start = start;
  } else {
    c->set_text(left(text, start) + from_code_point(static_cast<char32_t>(key)) + mid(text, start + length + 1));
    c->sel_start = start + 1;
  }
  c->sel_length = 0;
}

void Runtime::click(Control& control) {
  Dispatch dispatch(*this);
  if (!control.enabled) return;
  if (control.kind() == ControlKind::OptionButton) control.set_checked(true);
  if (control.kind() == ControlKind::CheckBox) control.set_checked(!control.checked());
  if (control.can_take_focus() && control.kind() != ControlKind::MenuItem) set_focus(control);
  if (control.on_click) control.on_click();
}

void Runtime::dbl_click(Control& control) {
  Dispatch dispatch(*this);
  if (control.on_dbl_click) control.on_dbl_click();
}

Answer Runtime::message(const std::string& text, Buttons buttons, Icon icon, const std::string& title) {
  return host_.message_box(text, buttons, icon, title);
}

void Runtime::centre(Form& form) {
  auto [width, height] = host_.display_size();
  centra_form(form, width, height);
}

void Runtime::end_program() {
  if (ended_) return;  // the main screen's Unload ends the program too
  Dispatch dispatch(*this);
  ended_ = true;
  // Every open screen closes, the front one first, as the program's end
  // unloads them all.
  std::vector<std::string> open;
  for (Form* form : stack_) open.push_back(form->name());
  for (auto it = open.rbegin(); it != open.rend(); ++it) close(*it);
  host_.end_program();
}

}  // namespace mz::ui
