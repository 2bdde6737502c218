// The titles a caller gives the option screen, and the accounts screen's
// combos that follow the list: a script cannot write a label of a screen
// as a caller does, so these are staged here.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "records/c2.h"
#include "shell/program.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/test_host.h"

namespace mz::records {
namespace {

std::vector<std::string> options(const char* file) {
  std::vector<std::string> rows;
  store::Database db = store::Workspace::open_database(file);
  for (store::Recordset rs = db.open_recordset("select A1 from A1 order by A1"); !rs.eof(); rs.move_next())
    rows.push_back(rs[0].text());
  return rows;
}

struct Fixture {
  testing::ScratchFolder folder;
  ui::TestHost host;
  ui::Runtime rt{host};
  int contas_loads = 0;
  Fixture() { shell::program().register_screens(rt); }

  // Stands in for the accounts screen: its type and history combos.
  void with_contas() {
    rt.register_screen("Contas", [this](ui::Runtime& r) {
      ++contas_loads;
      auto form = std::make_unique<ui::Form>(r, "Contas", "Caixa - Contas");
      form->add("D6", ui::ControlKind::ComboBox, "HISTÓRICO DIGITADO");
      form->add("D7", ui::ControlKind::ComboBox, "TIPO DIGITADO");
      return form;
    });
  }
  void include(const std::string& text) {
    ui::Form& c2 = rt.screen("c2");
    c2["Text1"].set_text(text);
    rt.click(c2["Command1"]);
  }
  void remove(const std::string& text) {
    ui::Form& c2 = rt.screen("c2");
    c2["Text1"].set_text(text);
    rt.click(c2["Command2"]);
  }
  std::vector<std::string> messages() const {
    std::vector<std::string> texts;
    for (const auto& m : host.messages) texts.push_back(m.text);
    return texts;
  }
};

TEST(C2, EachTitleKeepsItsOwnList) {
  struct Case {
    const char* title;
    const char* file;
  };
  const char* const files[] = {"C6.Mdb", "C7.Mdb", "C8.Mdb"};
  for (Case c : {Case{"CADASTRO DE TIPO", "C7.Mdb"}, Case{"CADASTRO DE HISTÓRICOS", "C8.Mdb"},
                 Case{"CADASTRO DE PLANO DE CONTAS", "C6.Mdb"}}) {
    SCOPED_TRACE(c.title);
    Fixture fx;
    std::map<std::string, std::vector<std::string>> before;
    for (const char* file : files) before[file] = options(file);
    show_option_screen(fx.rt, c.title);
    ui::Form& c2 = fx.rt.screen("c2");
    EXPECT_EQ(c2["NOME"].text(), c.title);
    EXPECT_EQ(fx.rt.focused(), &c2["Text1"]);
    EXPECT_EQ(c2["Text1"].items, before[c.file]);

    fx.include("SANT'ANA");
    fx.include("SANT'ANA");
    std::vector<std::string> grown = options(c.file);
    EXPECT_EQ(std::count(grown.begin(), grown.end(), "SANT'ANA"), 1);
    EXPECT_EQ(grown.size(), before[c.file].size() + 1);
    for (const char* file : files)
      if (std::string(file) != c.file) {
        EXPECT_EQ(options(file), before[file]) << file;
      }

    fx.rt.set_focus(c2["Command3"]);
    fx.rt.set_focus(c2["Text1"]);
    EXPECT_EQ(c2["Text1"].items, grown);

    fx.remove("SANT'ANA");
    fx.remove("SANT'ANA");
    EXPECT_EQ(options(c.file), before[c.file]);
    EXPECT_EQ(fx.messages(), (std::vector<std::string>{"Inclusão realizada com sucesso.", "Inclusão realizada com sucesso.",
                                                       "Exclusão realizada com sucesso.",
                                                       "Exclusão realizada com sucesso."}));
  }
}

TEST(C2, AnUnknownTitleDoesNothing) {
  Fixture fx;
  show_option_screen(fx.rt, "CADASTRO DE TIPOS");
  ui::Form& c2 = fx.rt.screen("c2");
  EXPECT_TRUE(c2["Text1"].items.empty());
  fx.include("NOVO");
  fx.remove("ALUGUEL");
  EXPECT_TRUE(fx.host.messages.empty());
  EXPECT_TRUE(options("C7.Mdb").empty());
  EXPECT_TRUE(options("C8.Mdb").empty());
  EXPECT_EQ(options("C6.Mdb").size(), 22u);
}

TEST(C2, TheOpenAccountsScreenShowsTheChangedList) {
  Fixture fx;
  fx.with_contas();
  fx.rt.show("Contas");
  ui::Form& contas = fx.rt.screen("Contas");
  show_option_screen(fx.rt, "CADASTRO DE TIPO");
  fx.include("BOLETO");
  EXPECT_EQ(contas["D7"].items, (std::vector<std::string>{"BOLETO"}));
  EXPECT_EQ(contas["D7"].text(), "");
  EXPECT_EQ(contas["D6"].text(), "HISTÓRICO DIGITADO");
  EXPECT_TRUE(contas["D6"].items.empty());

  fx.rt.close("c2");
  show_option_screen(fx.rt, "CADASTRO DE HISTÓRICOS");
  fx.include("ALUGUEL DA LOJA");
  fx.include("ÁGUA");
  EXPECT_EQ(contas["D6"].items, (std::vector<std::string>{"ÁGUA", "ALUGUEL DA LOJA"}));
  fx.remove("ÁGUA");
  EXPECT_EQ(contas["D6"].items, (std::vector<std::string>{"ALUGUEL DA LOJA"}));
  EXPECT_EQ(contas["D7"].items, (std::vector<std::string>{"BOLETO"}));

  // The chart of accounts has no combo there.
  fx.rt.close("c2");
  show_option_screen(fx.rt, "CADASTRO DE PLANO DE CONTAS");
  contas["D6"].set_text("DIGITADO");
  fx.include("NOVA CONTA");
  EXPECT_EQ(contas["D6"].text(), "DIGITADO");
  EXPECT_EQ(fx.contas_loads, 1);
}

TEST(C2, AClosedAccountsScreenIsNotLoadedToBeRefreshed) {
  Fixture fx;
  fx.with_contas();
  show_option_screen(fx.rt, "CADASTRO DE TIPO");
  fx.include("BOLETO");
  EXPECT_EQ(fx.contas_loads, 0);
  EXPECT_EQ(options("C7.Mdb"), (std::vector<std::string>{"BOLETO"}));
}

TEST(C2, AnAccountsScreenWithoutTheComboIsLeftAlone) {
  Fixture fx;  // the accounts screen as the program has it now
  fx.rt.show("Contas");
  show_option_screen(fx.rt, "CADASTRO DE HISTÓRICOS");
  fx.include("FRETE");
  EXPECT_EQ(fx.messages(), (std::vector<std::string>{"Inclusão realizada com sucesso."}));
  EXPECT_EQ(options("C8.Mdb"), (std::vector<std::string>{"FRETE"}));
}

}  // namespace
}  // namespace mz::records
