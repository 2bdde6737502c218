#pragma once
// The runtime owns the screens (one instance per name), the focus and the
// delivery of the user's keys, clicks and focus moves as events.
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/form.h"
#include "ui/host.h"

namespace mz::ui {

class Runtime {
 public:
  using Factory = std::function<std::unique_ptr<Form>(Runtime&)>;

  explicit Runtime(Host& host) : host_(host) {}
  ~Runtime();
  Host& host() const { return host_; }

  void register_screen(const std::string& name, Factory factory);
  bool knows_screen(std::string_view name) const;
  // The screen's one instance, loaded (its Load runs) on first use, as
  // touching another screen's control loads it without showing it.
  Form& screen(std::string_view name);
  // Shows the screen and gives the focus to its first control.
  Form& show(std::string_view name);
  // Unloads the screen: its Unload runs and its state is gone.
  void close(std::string_view name);
  bool is_shown(std::string_view name) const;
  // Brings an open screen to the front, the focus back on its last control,
  // as a click on its window does.
  void activate(Form& form);
  Form* active_form() const { return active_; }

  Control* focused() const { return focused_; }
  // LostFocus of the old control, then GotFocus of the new one.
  void set_focus(Control& control);

  // The user's input on the focused control, with the form's key preview first.
  void press_key(int key, int shift = 0);
  void type_char(char32_t c);
  void click(Control& control);
  void dbl_click(Control& control);

  // CentraForm: the screen in the middle of the host's display.
  void centre(Form& form);

  // A message box does not move the focus.
  Answer message(const std::string& text, Buttons buttons = Buttons::Ok, Icon icon = Icon::None,
                 const std::string& title = "Mostruz");
  void wait_pointer(bool on) { host_.wait_pointer(on); }
  void end_program();
  bool ended() const { return ended_; }

 private:
  struct Entry {
    Factory factory;
    std::unique_ptr<Form> form;
    bool shown = false;
    bool closing = false;  // its Unload is running
  };
  Entry& entry(std::string_view name);
  const Entry* find_entry(std::string_view name) const;
  void move_on(Control& from, bool backward);
  void move_in_group(Control& from, bool backward);
  void apply_leave_rule(Control& control);

  // Keeps closed screens alive until the user's input that closed them is
  // fully handled: a screen often closes itself from its own button.
  class Dispatch {
   public:
    explicit Dispatch(Runtime& rt) : rt_(rt) { ++rt_.depth_; }
    ~Dispatch();

   private:
    Runtime& rt_;
  };

  Host& host_;
  std::map<std::string, Entry> screens_;  // by lower-case name
  std::vector<std::unique_ptr<Form>> closed_;
  std::vector<Form*> stack_;  // shown screens, the front one last
  int depth_ = 0;
  Control* focused_ = nullptr;
  Control* entering_ = nullptr;  // the control set_focus is moving to, before its GotFocus
  Form* active_ = nullptr;
  bool ended_ = false;
};

}  // namespace mz::ui
