// The account reports: every title and order finds its filter, date,
// heading and template; the orders a title lacks find none; a failing
// print is reported and keeps the rows written.
#include <gtest/gtest.h>

#include "core/error.h"
#include "finance/reports/variants.h"
#include "shell/program.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::finance::reports {
namespace {

struct Case {
  const char* title;
  const char* option;
  const char* date, *operation, *status, *rela, *file;
};

const Case kCases[] = {
    {"RELATÓRIO DE CONTAS A PAGAR", "T1", "D3", "Pagar", "A", "RELATÓRIO DE CONTAS A PAGAR - VENCIMENTO.", "\\R6.rpt"},
    {"RELATÓRIO DE CONTAS A RECEBER", "T2", "D2", "Receber", "A", "RELATÓRIO DE CONTAS A RECEBER - EMISSÃO.",
     "\\R66.rpt"},
    {"RELATÓRIO DE CONTAS PAGAS", "T3", "PG", "Pagar", "F", "RELATÓRIO DE CONTAS PAGAS - OPERAÇÃO.", "\\R777.rpt"},
    {"RELATÓRIO DE CONTAS RECEBIDAS", "T4", "PG", "Receber", "F", "RELATÓRIO DE CONTAS RECEBIDAS - OPERAÇÃO.",
     "\\R7X.rpt"},
    {"RELATÓRIO DE CONTAS RECEBIDAS", "T2", "D2", "Receber", "F", "RELATÓRIO DE CONTAS RECEBIDAS - EMISSÃO.",
     "\\R77.rpt"},
    {"RELATÓRIO DE CONTAS PAGAS", "T1", "D3", "Pagar", "F", "RELATÓRIO DE CONTAS PAGAS - VENCIMENTO.", "\\R7.rpt"},
    // By customer the order is not asked.
    {"RELATÓRIO DE CONTAS A PAGAR POR CLIENTE", "T3", "D3", "Pagar", "A", "RELATÓRIO DE CONTAS A PAGAR POR CLIENTE",
     "\\R12.rpt"},
    {"RELATÓRIO DE CONTAS RECEBIDAS POR CLIENTE", "", "D3", "Receber", "F",
     "RELATÓRIO DE CONTAS RECEBIDAS POR CLIENTE", "\\R13.rpt"},
    // By plan of accounts: the account report it names.
    {"RELATÓRIO DE CONTAS PAGAS POR PLANO DE CONTAS", "T2", "D2", "Pagar", "F", "RELATÓRIO DE CONTAS PAGAS - EMISSÃO.",
     "\\R77.rpt"},
};

TEST(ClosingReports, EveryTitleAndOrderFindsItsReport) {
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.title) + " " + c.option);
    const Variant* v = find_variant(c.title, c.option);
    ASSERT_NE(v, nullptr);
    EXPECT_STREQ(v->date_column, c.date);
    EXPECT_STREQ(v->operation, c.operation);
    EXPECT_STREQ(v->status, c.status);
    EXPECT_STREQ(v->rela, c.rela);
    EXPECT_STREQ(v->report_file, c.file);
  }
}

TEST(ClosingReports, OpenAccountsHaveNoOrderOfOperation) {
  for (const char* option : {"T3", "T4", ""}) {
    EXPECT_EQ(find_variant("RELATÓRIO DE CONTAS A PAGAR", option), nullptr) << option;
    EXPECT_EQ(find_variant("RELATÓRIO DE CONTAS A RECEBER", option), nullptr) << option;
  }
  EXPECT_EQ(find_variant("", "T1"), nullptr);
  EXPECT_EQ(find_variant(" POR PLANO DE CONTAS", "T1"), nullptr);
}

TEST(ClosingReports, ListedTextsOpenTheirScreens) {
  const char* screens[] = {"IMPECON2", "IMPECON2", "IMPECON2", "IMPECON2",
                           "IMPECON4", "IMPECON4", "IMPECON4", "IMPECON4"};
  for (int i = 0; i < 8; ++i) {
    Choice c = choice_of(kListed[i]);
    ASSERT_NE(c.screen, nullptr) << kListed[i];
    EXPECT_STREQ(c.screen, screens[i]);
    EXPECT_NE(find_variant(c.title, "T1"), nullptr) << c.title;
  }
  EXPECT_EQ(choice_of("CONTAS A PAGAR").screen, nullptr);  // the full stop belongs to the text
}

// A printer that is switched off.
class PrinterOffHost : public ui::TestHost {
 public:
  void show_report(const print::ReportRequest&, const print::Document&) override {
    throw Error(482, "Erro de impressora");
  }
};

TEST(ClosingReports, AFailedPrintIsReportedAndKeepsTheRows) {
  testing::ScratchFolder folder;
  PrinterOffHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  store::Workspace::open_database("\\Contas.Mdb")
      .execute("Insert into Cada (CODIGO, D1, D2, D3, D4, D5, BX) values ('000001', 'Pagar', #11/01/2026#, "
               "#11/20/2026#, '100', '150', 'A')");
  ui::Form& f = rt.show("IMPECON2");
  f["TT"].set_text("RELATÓRIO DE CONTAS A PAGAR");
  host.answers.push_back({ui::Answer::No, "", false});
  rt.click(f["SSCommand7"]);
  ASSERT_EQ(host.messages.size(), 2u);
  EXPECT_EQ(host.messages[1].text, "Operação não realizada. Verifique a impressora.");
  EXPECT_TRUE(rt.is_shown("IMPECON2"));
  store::Database rela = store::Workspace::open_database("\\Rela3.MDB");
  EXPECT_EQ(rela.open_recordset("SELECT D4 FROM Rela3")[0].text(), "100");
}

}  // namespace
}  // namespace mz::finance::reports
