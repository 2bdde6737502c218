#pragma once
// The Qt front end: draws every open screen of the runtime and forwards the
// user's focus moves, keys and clicks to it. It keeps no logic of its own.
#include <QApplication>
#include <QDialog>
#include <QLockFile>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <filesystem>
#include <map>
#include <memory>
#include <vector>

#include "core/error.h"
#include "ui/runtime.h"
#include "ui/script_runner.h"

namespace mz::desktop {

class FormWindow;

class Desktop : public QObject, public ui::Host {
 public:
  explicit Desktop(const ui::Program& program);
  ~Desktop() override;

  ui::Runtime& runtime() { return runtime_; }
  void start();
  FormWindow* window(const ui::Form& form) const;
  // Brings every window in line with the runtime's state, then puts the
  // keyboard focus where the runtime has it.
  void sync();
  // A failure no handler trapped: its message, then the screens as it left them.
  void report_failure(const Error& failure);

  // ui::Host
  ui::Answer message_box(const std::string& text, ui::Buttons buttons, ui::Icon icon, const std::string& title) override;
  std::optional<std::string> input_box(const std::string& prompt, const std::string& title,
                                       const std::string& initial) override;
  std::optional<std::string> choose_printer() override;
  std::optional<std::string> choose_file(const std::string& title, const std::string& filter) override;
  void print_document(const print::PrintedDocument& document) override;
  void show_report(const print::ReportRequest& request, const print::Document& document) override;
  void send_to_port(const std::string& bytes) override;
  bool previous_instance() override;
  Date today() override;
  Date now() override;
  std::pair<int, int> display_size() override;
  void screen_shown(ui::Form& form) override;
  void screen_closed(ui::Form& form) override;
  void wait_pointer(bool on) override;
  void end_program() override;
  void start_program(const std::string& program) override;

 private:
  int exec_dialog(QDialog& dialog);
  void preview(const print::Document& document);
  void save_to_file(const print::ReportRequest& request, const print::Document& document);

  ui::Program program_;
  ui::Runtime runtime_{*this};
  std::map<const ui::Form*, std::unique_ptr<FormWindow>> windows_;
  std::vector<QPointer<FormWindow>> closed_;  // closed windows until Qt deletes them
  bool waiting_ = false;
  std::unique_ptr<QLockFile> instance_lock_;
  int in_dialog_ = 0;
  bool ending_ = false;
  QString printer_;  // chosen in the last printer dialog; empty: the system's default
};

// The desktop's application: a handler's failure that its screen does not
// trap is shown as the old runtime showed it ("Erro 6: Overflow"), and the
// program goes on with the screen as the failure left it.
class ShopApplication : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;
  Desktop* desktop = nullptr;  // shows the failures; until set, none is trapped
};

// Opens the program on the data folder (setting up a new shop first);
// returns the exit code.
int run_desktop(int argc, char** argv, const std::filesystem::path& folder, const ui::Program& program);

}  // namespace mz::desktop
