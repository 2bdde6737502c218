#include "ui/script_runner.h"
#include "ui/report.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "core/error.h"
#include "core/words.h"
#include "support/scratch_folder.h"

namespace mz::ui {
namespace {

TEST(UiScript, SplitsWordsAndQuotedText) {
  struct Case {
    const char* line;
    std::vector<std::string> words;
  };
  const std::vector<Case> cases = {
      {"type GR \"000701\"", {"type", "GR", "000701"}},
      {"  key Enter Tab   # then the button", {"key", "Enter", "Tab"}},
      {"expect text A1 \"a \\\"b\\\" \\\\ c\\td\"", {"expect", "text", "A1", "a \"b\" \\ c\td"}},
      {"expect port \"\\x1B\\x0F\"", {"expect", "port", "\x1B\x0F"}},
      {"answer \"#1\"", {"answer", "#1"}},
      {"# only a comment", {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.line);
    std::vector<std::string> words;
    for (const auto& w : split_words(c.line)) words.push_back(w.text);
    EXPECT_EQ(words, c.words);
  }
  EXPECT_THROW(split_words("type A1 \"open"), std::invalid_argument);
  EXPECT_THROW(split_words("type A1 \"\\q\""), std::invalid_argument);
}

// A screen with a name field that refuses an empty save and a button that asks.
Program test_program() {
  Program p;
  p.register_screens = [](Runtime& rt) {
    rt.register_screen("FICHA", [](Runtime& r) {
      auto form = std::make_unique<Form>(r, "FICHA", "Ficha de teste");
      Control& name = form->add("A1", ControlKind::TextBox);
      form->add("Command1", ControlKind::Button, "Grava").on_click = [&r, &name] {
        if (name.text().empty()) return r.set_focus(name);
        if (r.message("Confirma?", Buttons::YesNo) == Answer::Yes) r.message("Gravado: " + name.text());
      };
      form->add("Command2", ControlKind::Button, "Falha").on_click = [] { throw Error(3186, "bloqueado"); };
      form->add("Command3", ControlKind::Button, "Cupom").on_click = [&r, &name] {
        print::LinePrinter p;
        p.text("  Cliente: ").text(name.text()).end_line();
        p.tab(30).text("Total: 10,00").end_line();
        r.host().print_document(p.end_doc());
        print::RawPort port("\x1B\x0F");
        port.line("  Cliente: " + name.text());
        r.host().send_to_port(port.bytes());
      };
      form->add("Command4", ControlKind::Button, "Recibo").on_click = [&r, &name] {
        Report report(r, print::Destination::Printer);
        report.data_files = "\\reci.MDB";
        report.selection_formula = "{RECI.CODIGO} = '" + name.text() + "'";
        report.report_file_name = "\\RECI.rpt";
        report.action(1);
      };
      return form;
    });
  };
  p.start = [](Runtime& rt) { rt.show("FICHA"); };
  return p;
}

std::string run(const std::string& script, int* failed = nullptr) {
  testing::TempFolder folder;
  std::string path = (folder.path() / "ficha.script").string();
  std::ofstream(path) << script;
  std::ostringstream out;
  int f = run_scripts({path}, test_program(), out);
  if (failed) *failed = f;
  return out.str();
}

TEST(UiScript, ActsAsTheUserAndChecksWhatTheUserSees) {
  int failed = -1;
  std::string out = run(R"(start
expect caption FICHA "Ficha de teste"
click Command1
expect focus A1
expect no message
type A1 "Maria"
key Enter
expect focus Command1
answer no
key Enter
expect message "Confirma?"
expect no message
click Command1
expect message "Confirma?"
expect message "Gravado: Maria"
click Command2
expect error
expect screen FICHA open
)", &failed);
  EXPECT_EQ(out, "PASS ficha.script\n1 passed, 0 failed\n");
  EXPECT_EQ(failed, 0);
}

TEST(UiScript, ChecksWhatWasPrintedAndSentToThePort) {
  int failed = -1;
  std::string out = run(R"(open FICHA
type A1 "Ana"
click Command3
expect printed "  Cliente: Ana" "                             Total: 10,00"
expect port "\x1B\x0F  Cliente: Ana\x0D\x0A"
click Command3
expect printed "Total: 10,00"
expect port "Bruno"
expect printed "  Cliente: Ana"
)", &failed);
  EXPECT_EQ(out,
            "FAIL ficha.script\n"
            "ficha.script:7: expected printed lines \"Total: 10,00\", got \"  Cliente: Ana\" "
            "\"                             Total: 10,00\"\n"
            "ficha.script:8: expected port bytes \"Bruno\", got \"\x1B\x0F  Cliente: Ana\r\n\"\n"
            "ficha.script:9: expected a printed document, got none\n"
            "0 passed, 1 failed\n");
}

TEST(UiScript, ChecksTheReportsRunAndWhatTheyShow) {
  std::string out = run(R"script(sql RECI.Mdb "Insert into RECI (CODIGO, R2) values ('00007', 'ANA D''ÁVILA')"
open FICHA
type A1 "00007"
click Command4
expect report "reci.RPT" data "RECI.mdb" formula "{RECI.CODIGO} = '00007'" to printer shows "ANA D'ÁVILA"
click Command4
expect report "R6.rpt" data "CADA.MDB" formula "" to window shows "BRUNO"
expect report "RECI.rpt"
)script");
  EXPECT_EQ(out,
            "FAIL ficha.script\n"
            "ficha.script:7: expected report \"R6.rpt\", got \"RECI.rpt\"\n"
            "ficha.script:7: expected data \"CADA.MDB\", got \"\\reci.MDB\"\n"
            "ficha.script:7: expected formula \"\", got \"{RECI.CODIGO} = '00007'\"\n"
            "ficha.script:7: expected to window, got printer\n"
            "ficha.script:7: expected a report line holding \"BRUNO\", got none\n"
            "ficha.script:8: expected report \"RECI.rpt\", got none\n"
            "0 passed, 1 failed\n");
}

TEST(UiScript, ReportsEachFailedExpectationAndStopsAtALineItCannotCarryOut) {
  int failed = 0;
  std::string out = run(R"(open FICHA
expect text A1 "x"
expect message "Nada"
click Command9
expect text A1 ""
)", &failed);
  EXPECT_EQ(out,
            "FAIL ficha.script\n"
            "ficha.script:2: expected \"x\", got \"\"\n"
            "ficha.script:3: expected message \"Nada\", got no message\n"
            "ficha.script:4: unknown control Command9\n"
            "0 passed, 1 failed\n");
  EXPECT_EQ(failed, 1);
}

}  // namespace
}  // namespace mz::ui
