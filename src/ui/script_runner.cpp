#include "ui/script_runner.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <stdexcept>

#include "core/error.h"
#include "core/regional.h"
#include "core/text.h"
#include "core/words.h"
#include "store/data_folder.h"
#include "store/database.h"
#include "store/dialect.h"
#include "store/names.h"
#include "ui/keys.h"
#include "ui/test_host.h"

namespace mz::ui {
namespace fs = std::filesystem;
namespace {

// A line the runner cannot carry out: the script stops there and fails.
struct Stop : std::runtime_error {
  using std::runtime_error::runtime_error;
};

std::string in_quotes(const std::string& s) { return "\"" + s + "\""; }

std::string yes_no(bool b) { return b ? "yes" : "no"; }

// Key names of the `key` command.
int key_code(const std::string& name) {
  static const std::pair<const char*, int> kNames[] = {{"Enter", key::kEnter},         {"Tab", key::kTab},
                                                       {"Esc", key::kEscape},          {"Backspace", key::kBackspace},
                                                       {"Up", key::kUp},               {"Down", key::kDown}};
  for (const auto& [n, code] : kNames)
    if (name == n) return code;
  if (name.size() >= 2 && name[0] == 'F') {
    int f = std::atoi(name.c_str() + 1);
    if (f >= 1 && f <= 12) return key::kF1 + f - 1;
  }
  throw Stop("unknown key " + name);
}

class ScriptRun {
 public:
  ScriptRun(const Program& program, std::string name) : program_(program), name_(std::move(name)) {
    program_.register_screens(rt_);
  }

  // Failures, each "LINE: text"; empty when the script passed.
  std::vector<std::string> run(std::istream& in) {
    std::string line;
    int number = 0;
    while (std::getline(in, line)) {
      ++number;
      try {
        std::vector<Word> words = split_words(line);
        if (!words.empty()) execute(words, number);
      } catch (const std::exception& e) {
        failures_.push_back(std::to_string(number) + ": " + e.what());
        break;
      }
    }
    return failures_;
  }

 private:
  void fail(int line, const std::string& expected, const std::string& got) {
    failures_.push_back(std::to_string(line) + ": expected " + expected + ", got " + got);
  }

  // A user's action: a handler's untrapped failure is shown as a runtime error.
  template <typename Action>
  void act(Action action) {
    try {
      action();
    } catch (const Error& e) {
      host_.messages.push_back({"Erro " + std::to_string(e.number()) + ": " + e.what(), "Mostruz", true});
    }
  }

  static const std::string& word(const std::vector<Word>& w, size_t i) {
    if (i >= w.size()) throw Stop("missing argument to " + w[0].text);
    return w[i].text;
  }

  Form& open_screen(const std::string& name) {
    if (!rt_.knows_screen(name)) throw Stop("unknown screen " + name);
    return rt_.screen(name);
  }

  Control& control(const std::string& ref) {
    size_t dot = ref.find('.');
    Form* form = nullptr;
    std::string name = ref;
    if (dot != std::string::npos) {
      form = &open_screen(ref.substr(0, dot));
      name = ref.substr(dot + 1);
    } else {
      if (current_.empty()) throw Stop("no current screen for " + ref);
      form = &open_screen(current_);
    }
    Control* c = form->find(name);
    if (!c) throw Stop("unknown control " + ref);
    return *c;
  }

  static Date parse_clock(const std::string& date, const std::string& time) {
    auto d = parse_date(date + " " + time);
    if (!d) throw Stop("bad date " + date + " " + time);
    return *d;
  }

  std::vector<std::string> sql_rows(const std::string& file, const std::string& statement) {
    store::Database db = store::Workspace::open_trusted(file);
    if (store::translate(statement).kind != store::StatementKind::Select) {
      db.execute(statement);
      return {};
    }
    std::vector<std::string> rows;
    for (store::Recordset rs = db.open_recordset(statement); !rs.eof(); rs.move_next()) {
      std::string row;
      for (size_t i = 0; i < rs.field_count(); ++i) row += (i ? "\t" : "") + rs[i].text();
      rows.push_back(row);
    }
    return rows;
  }

  const TestHost::Message* next_message() {
    return seen_ < host_.messages.size() ? &host_.messages[seen_++] : nullptr;
  }

  void execute(const std::vector<Word>& w, int line) {
    const std::string& cmd = w[0].text;
    if (cmd == "today") host_.clock = parse_clock(word(w, 1), "10:00:00");
    else if (cmd == "now") host_.clock = parse_clock(word(w, 1), word(w, 2));
    else if (cmd == "sql") sql_rows(word(w, 1), word(w, 2));
    else if (cmd == "start") {
      act([&] { program_.start(rt_); });
      if (rt_.active_form()) current_ = rt_.active_form()->name();  // the screen the program came up with
    }
    else if (cmd == "open") {
      open_screen(word(w, 1));
      current_ = word(w, 1);
      act([&] { rt_.show(current_); });
    } else if (cmd == "on") {
      if (!rt_.is_shown(word(w, 1))) throw Stop("screen not open: " + word(w, 1));
      current_ = word(w, 1);
      act([&] { rt_.activate(rt_.screen(current_)); });
    } else if (cmd == "focus") {
      Control& c = control(word(w, 1));
      act([&] { rt_.set_focus(c); });
    } else if (cmd == "type") {
      Control& c = control(word(w, 1));
      const std::string& text = word(w, 2);
      act([&] {
        rt_.set_focus(c);
        c.sel_start = 0;
        c.sel_length = len(c.text());
        for (char32_t ch : to_u32(text)) rt_.type_char(ch);
      });
    } else if (cmd == "key") {
      for (size_t i = 1; i < w.size(); ++i) {
        if (w[i].quoted) act([&] { rt_.type_char(first_char(w[i].text)); });
        else act([&, code = key_code(w[i].text)] { rt_.press_key(code); });
      }
    } else if (cmd == "click") {
      Control& c = control(word(w, 1));
      act([&] { rt_.click(c); });
    } else if (cmd == "dblclick") {
      Control& c = control(word(w, 1));
      int row = std::stoi(word(w, 2));
      act([&] {
        c.grid.row = row;
        c.list_index = row;
        rt_.dbl_click(c);
      });
    } else if (cmd == "choose") {
      Control& c = control(word(w, 1));
      auto it = std::find(c.items.begin(), c.items.end(), word(w, 2));
      if (it == c.items.end()) throw Stop("no item " + in_quotes(word(w, 2)) + " in " + word(w, 1));
      act([&] {
        c.set_list_index(static_cast<int>(it - c.items.begin()));
        if (c.on_click) c.on_click();
      });
    } else if (cmd == "edit") {
      Control& c = control(word(w, 1));
      if (!c.editable_cells) throw Stop(word(w, 1) + " takes no typing in its cells");
      int row = std::stoi(word(w, 2)), col = std::stoi(word(w, 3));
      act([&] {
        c.grid.row = row;
        c.grid.col = col;
        c.grid.cell(row, col) = word(w, 4);
        if (c.on_change) c.on_change();
      });
    } else if (cmd == "answer") {
      TestHost::Reply r;
      const std::string& a = word(w, 1);
      if (w[1].quoted) r = {Answer::Ok, a, true};
      else if (a == "yes") r.button = Answer::Yes;
      else if (a == "no") r.button = Answer::No;
      else if (a == "ok") r.button = Answer::Ok;
      else if (a == "cancel") r.button = Answer::Cancel;
      else throw Stop("unknown answer " + a);
      host_.answers.push_back(r);
    } else if (cmd == "printer") host_.printers.push_back(word(w, 1));
    else if (cmd == "expect") expect(w, line);
    else throw Stop("unknown command " + cmd);
  }

  void expect(const std::vector<Word>& w, int line) {
    const std::string& what = word(w, 1);
    if (what == "message") {
      const TestHost::Message* m = next_message();
      if (!m) fail(line, "message " + in_quotes(word(w, 2)), "no message");
      else if (m->error || m->text != word(w, 2)) fail(line, "message " + in_quotes(word(w, 2)), in_quotes(m->text));
    } else if (what == "no") {
      if (word(w, 2) != "message") throw Stop("unknown expectation no " + word(w, 2));
      if (const TestHost::Message* m = next_message()) fail(line, "no message", in_quotes(m->text));
    } else if (what == "error") {
      const TestHost::Message* m = next_message();
      if (!m || !m->error) fail(line, "a runtime error", m ? in_quotes(m->text) : "no message");
    } else if (what == "text") {
      Control& c = control(word(w, 2));
      if (c.text() != word(w, 3)) fail(line, in_quotes(word(w, 3)), in_quotes(c.text()));
    } else if (what == "caption") {
      Form& f = open_screen(word(w, 2));
      if (f.caption != word(w, 3)) fail(line, in_quotes(word(w, 3)), in_quotes(f.caption));
    } else if (what == "focus") {
      Control& c = control(word(w, 2));
      Control* f = rt_.focused();
      if (f != &c) fail(line, "focus on " + word(w, 2), f ? f->form().name() + "." + f->name() : "no focus");
    } else if (what == "enabled" || what == "visible" || what == "checked") {
      Control& c = control(word(w, 2));
      bool actual = what == "enabled" ? c.enabled : what == "visible" ? c.visible : c.checked();
      if (yes_no(actual) != word(w, 3)) fail(line, what + " " + word(w, 3), yes_no(actual));
    } else if (what == "items") {
      Control& c = control(word(w, 2));
      std::vector<std::string> expected;
      for (size_t i = 3; i < w.size(); ++i) expected.push_back(w[i].text);
      if (c.items != expected) fail(line, join(expected), join(c.items));
    } else if (what == "rows") {
      Control& c = control(word(w, 2));
      if (std::to_string(c.grid.rows) != word(w, 3)) fail(line, word(w, 3) + " rows", std::to_string(c.grid.rows));
    } else if (what == "cell") {
      Control& c = control(word(w, 2));
      int row = std::stoi(word(w, 3)), col = std::stoi(word(w, 4));
      std::string actual = row < c.grid.rows && col < c.grid.cols ? c.grid.cell(row, col) : "(no such cell)";
      if (actual != word(w, 5)) fail(line, in_quotes(word(w, 5)), in_quotes(actual));
    } else if (what == "screen") {
      bool open = rt_.is_shown(word(w, 2));
      if ((open ? "open" : "closed") != word(w, 3)) fail(line, word(w, 2) + " " + word(w, 3), open ? "open" : "closed");
    } else if (what == "sql") {
      std::vector<std::string> expected;
      bool none = w.size() == 5 && !w[4].quoted && w[4].text == "none";
      for (size_t i = 4; i < w.size() && !none; ++i) expected.push_back(w[i].text);
      std::vector<std::string> rows = sql_rows(word(w, 2), word(w, 3));
      if (rows != expected) fail(line, expected.empty() ? "none" : join(expected), rows.empty() ? "none" : join(rows));
    } else if (what == "file") {
      bool exists = fs::exists(store::Workspace::folder() / word(w, 2));
      if ((exists ? "exists" : "missing") != word(w, 3)) fail(line, word(w, 2) + " " + word(w, 3), exists ? "exists" : "missing");
    } else if (what == "printed") {
      std::vector<std::string> wanted;
      for (size_t i = 2; i < w.size(); ++i) wanted.push_back(w[i].text);
      if (printed_seen_ >= host_.printed.size()) return fail(line, "a printed document", "none");
      std::vector<std::string> lines;
      for (const auto& page : host_.printed[printed_seen_++].pages) lines.insert(lines.end(), page.begin(), page.end());
      if (std::search(lines.begin(), lines.end(), wanted.begin(), wanted.end()) == lines.end())
        fail(line, "printed lines " + join(wanted), join(lines));
    } else if (what == "port") {
      if (port_seen_ >= host_.port_jobs.size()) return fail(line, "a port job", "none");
      const std::string& bytes = host_.port_jobs[port_seen_++];
      if (bytes.find(word(w, 2)) == std::string::npos) fail(line, "port bytes " + in_quotes(word(w, 2)), in_quotes(bytes));
    } else if (what == "report") {
      expect_report(w, line);
    } else {
      throw Stop("unknown expectation " + what);
    }
  }

  // expect report "TEMPLATE" [data "FILE"] [formula "TEXT"] [to window|printer|file] [shows "TEXT"]...
  void expect_report(const std::vector<Word>& w, int line) {
    const std::string& wanted = word(w, 2);
    if (reports_seen_ >= host_.reports.size()) return fail(line, "report " + in_quotes(wanted), "none");
    const TestHost::ReportJob& job = host_.reports[reports_seen_++];
    const print::ReportRequest& run = job.request;
    if (!store::same_name(print::template_name(run), wanted))
      fail(line, "report " + in_quotes(wanted), in_quotes(print::template_name(run)));
    for (size_t i = 3; i < w.size(); i += 2) {
      const std::string& check = w[i].text;
      const std::string& value = word(w, i + 1);
      if (check == "data") {
        std::string file = run.data_file.substr(run.data_file.find_last_of("\\/") + 1);
        if (!store::same_name(file, value)) fail(line, "data " + in_quotes(value), in_quotes(run.data_file));
      } else if (check == "formula") {
        if (run.selection_formula != value) fail(line, "formula " + in_quotes(value), in_quotes(run.selection_formula));
      } else if (check == "shows") {
        if (!report_shows(job.document, value)) fail(line, "a report line holding " + in_quotes(value), "none");
      } else if (check == "to") {
        static const char* const kNames[] = {"window", "printer", "file"};
        std::string actual = kNames[static_cast<int>(run.destination)];
        if (actual != value) fail(line, "to " + value, actual);
      } else {
        throw Stop("unknown report check " + check);
      }
    }
  }

  // Whether a line of the laid-out pages holds the text.
  static bool report_shows(const print::Document& document, const std::string& text) {
    for (const print::Page& page : document.pages)
      for (const std::string& line : print::page_text(page))
        if (line.find(text) != std::string::npos) return true;
    return false;
  }

  static std::string join(const std::vector<std::string>& items) {
    std::string out;
    for (const auto& i : items) out += (out.empty() ? "" : " ") + in_quotes(i);
    return out.empty() ? "nothing" : out;
  }

  const Program& program_;
  std::string name_;
  TestHost host_;
  Runtime rt_{host_};
  std::string current_;
  size_t seen_ = 0, printed_seen_ = 0, port_seen_ = 0, reports_seen_ = 0;
  std::vector<std::string> failures_;
};

fs::path temp_folder(const std::string& stem) {
  static int counter = 0;
  return fs::temp_directory_path() / ("mostruz-" + stem + "-" + std::to_string(getpid()) + "-" + std::to_string(counter++));
}

}  // namespace

int run_scripts(const std::vector<std::string>& files, const Program& program, std::ostream& out) {
  fs::path template_folder = temp_folder("scripts");
  store::setup_data_folder(template_folder);
  int passed = 0, failed = 0;
  for (const std::string& file : files) {
    std::string name = fs::path(file).filename().string();
    fs::path folder = temp_folder("script");
    fs::copy(template_folder, folder, fs::copy_options::recursive);
    store::Workspace::set_folder(folder);
    std::vector<std::string> failures;
    std::ifstream in(file);
    if (!in) failures.push_back("0: cannot read the script");
    else failures = ScriptRun(program, name).run(in);
    store::Workspace::close_all();
    fs::remove_all(folder);
    out << (failures.empty() ? "PASS " : "FAIL ") << name << "\n";
    for (const auto& f : failures) out << name << ":" << f << "\n";
    (failures.empty() ? passed : failed) += 1;
  }
  fs::remove_all(template_folder);
  out << passed << " passed, " << failed << " failed\n";
  return failed;
}

}  // namespace mz::ui
