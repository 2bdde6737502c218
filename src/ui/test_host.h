#pragma once
// The host of screen tests: a fixed clock, answers queued in advance, and a
// record of every message and screen shown.
#include <deque>
#include <string>
#include <vector>

#include "ui/host.h"

namespace mz::ui {

class TestHost : public Host {
 public:
  struct Message {
    std::string text;
    std::string title;
    bool error = false;  // an untrapped failure of a handler
  };

  // The answer to the next box: a button, or the text typed into an input box.
  struct Reply {
    Answer button = Answer::Ok;
    std::string text;
    bool is_text = false;
  };

  Date clock = Date::from_ymd_hms(2026, 11, 22, 10, 0, 0);
  std::deque<Reply> answers;
  std::vector<Message> messages;
  std::vector<std::string> shown, closed;
  std::deque<std::string> printers;  // the choices of the next printer dialogs
  bool waiting = false;
  bool ended = false;
  bool another_copy_running = false;

  Answer message_box(const std::string& text, Buttons buttons, Icon icon, const std::string& title) override;
  std::optional<std::string> input_box(const std::string& prompt, const std::string& title,
                                       const std::string& initial) override;
  std::optional<std::string> choose_printer() override;
  std::optional<std::string> choose_file(const std::string& title, const std::string& filter) override;
  void print_document(const print::PrintedDocument& document) override { printed.push_back(document); }
  void send_to_port(const std::string& bytes) override { port_jobs.push_back(bytes); }
  std::vector<print::PrintedDocument> printed;
  struct ReportJob {
    print::ReportRequest request;
    print::Document document;
  };
  void show_report(const print::ReportRequest& request, const print::Document& document) override {
    reports.push_back({request, document});
  }
  std::vector<ReportJob> reports;
  std::vector<std::string> port_jobs;
  bool previous_instance() override { return another_copy_running; }
  Date today() override { return clock.date_only(); }
  Date now() override { return clock; }
  std::pair<int, int> display_size() override { return {1024, 768}; }
  void screen_shown(Form& form) override;
  void screen_closed(Form& form) override;
  void wait_pointer(bool on) override { waiting = on; }
  void end_program() override { ended = true; }
  void start_program(const std::string& program) override { started.push_back(program); }
  std::vector<std::string> started;
};

}  // namespace mz::ui
