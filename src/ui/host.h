#pragma once
// Everything a screen needs from the world outside the program goes through
// the host: the desktop answers with real dialogs, the test host from a script.
#include <optional>
#include <string>
#include <utility>

#include "core/value.h"
#include "print/line_printer.h"
#include "print/report.h"

namespace mz::ui {

class Form;

// The buttons and icons of a message box, as the handlers combine them.
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Answer { Ok, Cancel, Yes, No };

class Host {
 public:
  virtual ~Host() = default;
  virtual Answer message_box(const std::string& text, Buttons buttons, Icon icon, const std::string& title) = 0;
  // nullopt when the user cancels; the old input box gave "" then, and
  // callers that do not care read value_or("").
  virtual std::optional<std::string> input_box(const std::string& prompt, const std::string& title,
                                               const std::string& initial) = 0;
  // The printer dialog: the chosen printer, or nullopt when cancelled.
  virtual std::optional<std::string> choose_printer() = 0;
  // The open-file dialog: the full path of the chosen file, or nullopt when
  // cancelled. `filter` is a description and its patterns, "Imagens (*.jpg *.bmp)".
  virtual std::optional<std::string> choose_file(const std::string& title, const std::string& filter) = 0;
  // A document drawn by the program, to the current printer.
  virtual void print_document(const print::PrintedDocument& document) = 0;
  // A laid-out report to the destination its component names: the preview
  // window, the current printer, or a file the user chooses.
  virtual void show_report(const print::ReportRequest& request, const print::Document& document) = 0;
  // Bytes straight to the printer's port; throws Error when the port fails.
  virtual void send_to_port(const std::string& bytes) = 0;
  // Whether another copy of the program is already running on this machine.
  virtual bool previous_instance() = 0;
  virtual Date today() = 0;
  virtual Date now() = 0;
  // The display the screens are centred on, in pixels.
  virtual std::pair<int, int> display_size() = 0;
  virtual void screen_shown(Form& form) = 0;
  virtual void screen_closed(Form& form) = 0;
  virtual void wait_pointer(bool on) = 0;
  virtual void end_program() = 0;
  // Starts a program of the data folder (the manual viewer) and goes on.
  virtual void start_program(const std::string& program) = 0;
};

}  // namespace mz::ui
