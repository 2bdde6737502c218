#include "ui/form.h"

#include "core/error.h"
#include "store/names.h"

namespace mz::ui {

Form::Form(Runtime& runtime, std::string name, std::string caption)
    : caption(std::move(caption)), runtime_(runtime), name_(std::move(name)) {}

Control& Form::add(std::string name, ControlKind kind, std::string text) {
  controls_.push_back(std::make_unique<Control>(*this, std::move(name), kind, std::move(text)));
  return *controls_.back();
}

Control* Form::find(std::string_view name) const {
  for (const auto& c : controls_)
    if (store::same_name(c->name(), name)) return c.get();
  return nullptr;
}

Control& Form::operator[](std::string_view name) const {
  if (Control* c = find(name)) return *c;
  throw Error(err::kInvalidProcedureCall, "O controle '" + std::string(name) + "' não existe em " + name_ + ".");
}

// A group of options is one stop: Tab leaves the group, and enters it on the
// option that is set, if one is.
bool Form::passed_over_in_group(const Control* c, const Control* from) const {
  if (c->kind() != ControlKind::OptionButton) return false;
  if (from && from->kind() == ControlKind::OptionButton && from->group == c->group) return true;
  if (c->checked()) return false;
  for (const auto& other : controls_)
    if (other.get() != c && other->kind() == ControlKind::OptionButton && other->group == c->group && other->checked())
      return true;
  return false;
}

Control* Form::next_in_tab_order(const Control* from, bool backward) const {
  const long n = static_cast<long>(controls_.size());
  long at = -1;  // from's place; -1 when the walk starts outside the form
  for (long i = 0; i < n; ++i)
    if (controls_[static_cast<size_t>(i)].get() == from) at = i;
  for (long step = 1; step <= n; ++step) {
    long i = at < 0 ? (backward ? n - step : step - 1) : (at + (backward ? n - step : step)) % n;
    Control* c = controls_[static_cast<size_t>(i)].get();
    if (c->can_take_focus() && !passed_over_in_group(c, from)) return c;
  }
  return nullptr;
}

void add_action(Form& form, const std::string& button, const std::string& menu_item, const std::string& caption,
                std::function<void()> action) {
  form.add(button, ControlKind::Button, caption).on_click = action;
  form.add(menu_item, ControlKind::MenuItem, caption).on_click = std::move(action);
}

void centra_form(Form& form, int screen_width, int screen_height) {
  form.top = (screen_height - form.height) / 2;
  form.left = (screen_width - form.width) / 2;
}

}  // namespace mz::ui
