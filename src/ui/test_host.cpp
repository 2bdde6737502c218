#include "ui/test_host.h"

#include <filesystem>

#include "store/database.h"
#include "ui/form.h"

namespace mz::ui {
namespace {

// The button a box takes when nothing was queued for it.
Answer default_answer(Buttons buttons) {
  return buttons == Buttons::YesNo || buttons == Buttons::YesNoCancel ? Answer::Yes : Answer::Ok;
}

}  // namespace

Answer TestHost::message_box(const std::string& text, Buttons buttons, Icon, const std::string& title) {
  messages.push_back({text, title});
  if (answers.empty()) return default_answer(buttons);
  Reply r = answers.front();
  answers.pop_front();
  return r.is_text ? Answer::Ok : r.button;
}

std::optional<std::string> TestHost::input_box(const std::string&, const std::string&, const std::string&) {
  if (answers.empty()) return std::string();
  Reply r = answers.front();
  answers.pop_front();
  if (!r.is_text && r.button == Answer::Cancel) return std::nullopt;
  return r.text;
}

// The dialog takes the next queued answer, as a message box would: Cancel
// closes it with no choice; otherwise the printer queued for it is chosen.
std::optional<std::string> TestHost::choose_printer() {
  if (!answers.empty()) {
    Reply r = answers.front();
    answers.pop_front();
    if (!r.is_text && r.button == Answer::Cancel) return std::nullopt;
  }
  if (printers.empty()) return std::string("Impressora padrão");
  std::string p = printers.front();
  printers.pop_front();
  return p;
}

// The queued text is the path, relative to the data folder unless absolute;
// Cancel, or nothing queued, closes the dialog with no choice.
std::optional<std::string> TestHost::choose_file(const std::string&, const std::string&) {
  if (answers.empty()) return std::nullopt;
  Reply r = answers.front();
  answers.pop_front();
  if (!r.is_text || r.text.empty()) return std::nullopt;
  std::filesystem::path path(r.text);
  return (path.is_absolute() ? path : store::Workspace::folder() / path).string();
}

void TestHost::screen_shown(Form& form) { shown.push_back(form.name()); }
void TestHost::screen_closed(Form& form) { closed.push_back(form.name()); }

}  // namespace mz::ui
