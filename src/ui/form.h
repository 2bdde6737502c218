#pragma once
// A screen: named controls in tab order, its caption and its own events.
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"

namespace mz::ui {

class Runtime;

class Form {
 public:
  Form(Runtime& runtime, std::string name, std::string caption);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Runtime& runtime() const { return runtime_; }
  const std::string& name() const { return name_; }
  std::string caption;
  int left = 0, top = 0, width = 640, height = 480;
  bool key_preview = false;

  // Controls are added in tab order.
  Control& add(std::string name, ControlKind kind, std::string text = "");
  Control* find(std::string_view name) const;  // any case spelling
  Control& operator[](std::string_view name) const;  // Error 5 when unknown
  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

  // The control Tab reaches from `from` (nullptr: the first one).
  Control* next_in_tab_order(const Control* from, bool backward = false) const;

  std::function<void()> on_load, on_activate, on_unload;
  Control* last_focus = nullptr;  // where the focus returns when the screen is activated again
  std::function<void(int& key, int shift)> on_key_down;  // seen first with key_preview
  std::function<void(int& key)> on_key_press;

 private:
  bool passed_over_in_group(const Control* c, const Control* from) const;

  Runtime& runtime_;
  std::string name_;
  std::vector<std::unique_ptr<Control>> controls_;
};

// A button and the menu item that does the same thing, as screens pair them.
void add_action(Form& form, const std::string& button, const std::string& menu_item, const std::string& caption,
                std::function<void()> action);

// Centres the form on a display of the given size.
void centra_form(Form& form, int screen_width, int screen_height);

}  // namespace mz::ui
