#include "print/report.h"

#include <gtest/gtest.h>

#include <fstream>

#include "print/render.h"
#include "print/template.h"
#include "store/database.h"
#include "support/errors.h"
#include "support/scratch_folder.h"

namespace mz::print {
namespace {

using testing::error_number;

const Date kToday = Date::from_ymd(2026, 11, 23);

void write_template(const testing::ScratchFolder& folder, const std::string& name, const std::string& text) {
  std::ofstream(folder.path() / name) << text;
}

std::vector<std::string> all_text(const Document& doc) {
  std::vector<std::string> lines;
  for (const Page& page : doc.pages)
    for (const std::string& line : page_text(page)) lines.push_back(line);
  return lines;
}

bool has_line(const std::vector<std::string>& lines, const std::string& wanted) {
  for (const auto& l : lines)
    if (l == wanted) return true;
  return false;
}

TEST(PrintTemplate, FieldTextSplitsLiteralsFieldsAndPatterns) {
  FieldText t = parse_field_text("R$ {R9:###,##0.00} em {{R4}} {Codigo}");
  ASSERT_EQ(t.size(), 4u);
  EXPECT_EQ(t[0].literal, "R$ ");
  EXPECT_EQ(t[1].field, "r9");
  EXPECT_EQ(t[1].pattern, "###,##0.00");
  EXPECT_EQ(t[2].literal, " em {R4} ");
  EXPECT_EQ(t[3].field, "codigo");
  EXPECT_EQ(t[3].pattern, "");
}

TEST(PrintTemplate, BadTemplatesNameTheLineAtFault) {
  struct Case {
    const char* text;
    const char* line;
  };
  const Case cases[] = {
      {"table RECI\n", "linha 1"},                                    // the kind comes first
      {"report list\ntable RECI\ncolumn \"A\" 20 \"{R2\"\n", "linha 3"},  // open brace
      {"report list\ntable RECI\ncolumn \"A\" vinte \"{R2}\"\n", "linha 3"},
      {"report form\ntable RECI\ntext 1 2 \"x\" wrap\n", "linha 3"},  // wrap without a width
      {"report form\ntable RECI\n\ngrid 0 2\n", "linha 4"},
      {"report list\ntable RECI\ncolumn \"V\" 20 \"R$\" sum\n", "linha 3"},  // a sum needs a field
      {"report list\ntable RECI\nbarcode 1 1 1 1 \"x\"\n", "linha 3"},      // not in a list
      {"report list\n", "faltam"},
      {"report form\ntable RECI\ntext 0 0 \"{loja.A7}\"\n", "linha 3"},  // the shop has six lines
  };
  for (const Case& c : cases) {
    try {
      parse_template(c.text, "X.rpt");
      ADD_FAILURE() << c.text;
    } catch (const Error& e) {
      EXPECT_EQ(e.number(), kBadTemplate);
      EXPECT_NE(std::string(e.what()).find(c.line), std::string::npos) << e.what();
    }
  }
}

class PrintReport : public ::testing::Test {
 protected:
  void SetUp() override {
    store::Database db = store::Workspace::open_database("\\EMPE.Mdb");
    db.execute("Update EMPE set A1 = 'CONFECÇÕES SANT''ANA', A3 = 'RUA DAS FLORES, 10', A4 = 'CENTRO'");
  }
  void add_receipt(const char* code, const char* payer, const char* date, const char* amount) {
    store::Recordset rs = store::Workspace::open_database("\\RECI.Mdb").open_recordset("SELECT* FROM RECI");
    rs.add_new();
    rs["CODIGO"] = code;
    rs["R2"] = payer;
    rs["R4"] = date;
    rs["R9"] = amount;
    rs.update();
  }
  Document run(const std::string& name, const std::string& formula = "") {
    return run_report({"\\reci.MDB", formula, "C:\\LOJA\\" + name, Destination::Window, std::nullopt}, kToday);
  }
  testing::ScratchFolder folder_;
};

TEST_F(PrintReport, ListGroupsWithSubtotalsTotalAndPageNumbers) {
  write_template(folder_, "GRUPOS.rpt",
                 "report list\ndata reci.MDB\ntable RECI\ntitle \"Recibos por cliente\"\norder R2 CODIGO\n"
                 "column \"Nº\" 20 \"{CODIGO}\"\ncolumn \"Data\" 25 \"{R4}\"\n"
                 "column \"Valor\" 30 \"{R9:###,##0.00}\" right sum\n"
                 "group R2 \"Cliente: {R2}\" \"Total de {contagem} recibos\"\ntotal \"Total geral\"\n");
  add_receipt("00002", "MARIA D'ÁVILA", "02/11/2026", "10,50");
  add_receipt("00001", "ANA", "01/11/2026", "1234,5");
  add_receipt("00003", "MARIA D'ÁVILA", "03/11/2026", "100");
  Document doc = run("grupos.RPT");
  ASSERT_EQ(doc.pages.size(), 1u);
  std::vector<std::string> lines = page_text(doc.pages[0]);
  EXPECT_EQ(lines[0], "CONFECÇÕES SANT'ANA Emitido em 23/11/2026");
  EXPECT_EQ(lines[1], "RUA DAS FLORES, 10 - CENTRO");
  EXPECT_EQ(lines[2], "Recibos por cliente Página 1 de 1");
  EXPECT_EQ(lines[3], "Nº Data Valor");
  EXPECT_EQ(std::vector<std::string>(lines.begin() + 4, lines.end()),
            (std::vector<std::string>{"Cliente: ANA", "00001 01/11/2026 1.234,50", "Total de 1 recibos 1.234,50",
                                      "Cliente: MARIA D'ÁVILA", "00002 02/11/2026 10,50", "00003 03/11/2026 100,00",
                                      "Total de 2 recibos 110,50", "Total geral 1.345,00"}));
}

TEST_F(PrintReport, CaptionsReadTheFirstRowAndTheTotalTheLast) {
  write_template(folder_, "CAP.rpt",
                 "report list\ntable RECI\ncolumn \"{R8}\" 30 \"{R9}\" right sum\ntotal \"até {CODIGO}\"\n");
  for (const char* code : {"00001", "00002"}) {
    add_receipt(code, "ANA", "01/11/2026", "2");
    store::Workspace::open_database("\\RECI.Mdb").execute("Update RECI set R8 = 'TAMANHO GG'");
  }
  Document doc = run("CAP.rpt");
  std::vector<std::string> lines = page_text(doc.pages[0]);
  EXPECT_EQ(std::vector<std::string>(lines.begin() + 3, lines.end()),
            (std::vector<std::string>{"TAMANHO GG", "2", "2", "até 00002", "4,00"}))
      << "a closing text with no room left of the sums takes its own line";
  EXPECT_EQ(doc.table, (std::vector<std::vector<std::string>>{{"TAMANHO GG"}, {"2"}, {"2"}}));
}

TEST_F(PrintReport, LongListsBreakPagesAndCountThem) {
  write_template(folder_, "L.rpt", "report list\ntable RECI\ntitle \"T\"\ncolumn \"Nº\" 20 \"{CODIGO}\"\n");
  for (int i = 1; i <= 120; ++i) add_receipt(std::to_string(10000 + i).c_str(), "ANA", "01/11/2026", "1");
  Document doc = run("L.rpt");
  ASSERT_GE(doc.pages.size(), 2u);
  std::string last = "T Página " + std::to_string(doc.pages.size()) + " de " + std::to_string(doc.pages.size());
  EXPECT_EQ(page_text(doc.pages.back())[2], last);
  std::vector<std::string> lines = all_text(doc);
  EXPECT_TRUE(has_line(lines, "10001"));
  EXPECT_TRUE(has_line(lines, "10120"));
}

TEST_F(PrintReport, SelectionFormulasPickTheRows) {
  write_template(folder_, "S.rpt", "report list\ntable RECI\ncolumn \"Nº\" 20 \"{CODIGO}\"\n");
  add_receipt("00001", "ANA", "01/11/2026", "1");
  add_receipt("00002", "BIA", "15/11/2026", "1");
  add_receipt("00003", "CAIO", "30/11/2026", "1");
  // Work tables keep dates as text: R5 holds the date as a screen shows it.
  store::Workspace::open_database("\\RECI.Mdb").execute("Update RECI set R5 = '15/11/2026' where CODIGO = '00002'");
  store::Workspace::open_database("\\RECI.Mdb").execute("Update RECI set R5 = '30/11/2026' where CODIGO = '00003'");
  struct Case {
    const char* formula;
    std::vector<std::string> codes;
  };
  const Case cases[] = {
      {"", {"00001", "00002", "00003"}},
      {"{RECI.CODIGO} = '00002'", {"00002"}},
      {"{reci.r4} >= Date ( 2026,11,1) and  {reci.r4} <= Date ( 2026,11,15)", {"00001", "00002"}},
      {"{RECI.CODIGO} = '99999'", {}},
      {"{reci.r2} = 'bia'", {"00002"}},  // text compares in any case
      {"{reci.r4} = Date (2026,11,15)", {"00002"}},
      {"{reci.r4} > Date (2026,11,15)", {"00003"}},
      {"{reci.r5} >= Date (2026,11,10) and {reci.r5} < Date (2026,11,30)", {"00002"}},
  };
  for (const Case& c : cases) {
    std::vector<std::string> lines = page_text(run("S.rpt", c.formula).pages[0]);
    std::vector<std::string> codes(lines.begin() + 4, lines.end());  // past the heading and the captions
    EXPECT_EQ(codes, c.codes) << c.formula;
  }
}

TEST_F(PrintReport, FormsFillCellsAcrossThenDownAndSheetsAfter) {
  write_template(folder_, "F.rpt",
                 "report form\ntable RECI\nmargins 10 5 5 10\ncell 100 50\ngrid 2 2\n"
                 "text 2 3 \"{CODIGO} {R2}\" bold\nbarcode 2 10 40 10 \"*{CODIGO}*\"\nbox 0 0 100 50\n");
  for (int i = 1; i <= 5; ++i) add_receipt(("0000" + std::to_string(i)).c_str(), "ANA", "01/11/2026", "1");
  Document doc = run("F.rpt");
  ASSERT_EQ(doc.pages.size(), 2u);
  std::vector<std::pair<double, double>> places;
  std::vector<std::string> codes;
  for (const Item& item : doc.pages[0].items)
    if (const auto* b = std::get_if<BarcodeItem>(&item)) {
      places.emplace_back(b->x, b->y);
      codes.push_back(b->data);
    }
  EXPECT_EQ(places, (std::vector<std::pair<double, double>>{{7, 20}, {107, 20}, {7, 70}, {107, 70}}));
  EXPECT_EQ(codes, (std::vector<std::string>{"00001", "00002", "00003", "00004"}));
  EXPECT_EQ(page_text(doc.pages[1]), std::vector<std::string>{"00005 ANA"});
}

TEST_F(PrintReport, MarginsInTwipsMoveTheFirstCell) {
  write_template(folder_, "M.rpt", "report form\ntable RECI\ntext 0 0 \"{CODIGO}\"\n");
  add_receipt("00001", "ANA", "01/11/2026", "1");
  ReportRequest r{"\\reci.MDB", "", "M.rpt", Destination::Printer, Margins{1440, 720, 360, 360}};
  Document doc = run_report(r, kToday);
  const auto& text = std::get<TextItem>(doc.pages[0].items[0]);
  EXPECT_DOUBLE_EQ(text.x, 12.7);
  EXPECT_DOUBLE_EQ(text.y, 25.4);
}

TEST_F(PrintReport, WrappedTextKeepsWithinItsWidth) {
  write_template(folder_, "W.rpt", "report form\ntable RECI\ntext 0 0 \"{R2}\" width 30 wrap\n");
  add_receipt("00001", "Hum mil,duzentos e trinta e quatro reais e cinquenta e seis centavos.", "01/11/2026", "1");
  std::vector<std::string> lines = page_text(run("W.rpt").pages[0]);
  ASSERT_GT(lines.size(), 2u);
  std::string joined;
  for (const auto& l : lines) joined += (joined.empty() ? "" : " ") + l;
  EXPECT_EQ(joined, "Hum mil,duzentos e trinta e quatro reais e cinquenta e seis centavos.");
}

TEST_F(PrintReport, TextInABoxIsCutAtItsEdge) {
  write_template(folder_, "C.rpt", "report form\ntable RECI\ntext 0 0 \"{R2}\" width 25 center\ntext 0 9 \"{R2}\"\n");
  add_receipt("00001", "CAMISA POLO MANGA CURTA ALGODÃO", "01/11/2026", "1");
  Document doc = run("C.rpt");
  const auto& boxed = std::get<TextItem>(doc.pages[0].items[0]);
  const auto& free = std::get<TextItem>(doc.pages[0].items[1]);
  EXPECT_EQ(free.text, "CAMISA POLO MANGA CURTA ALGODÃO") << "text without a box runs on";
  EXPECT_FALSE(boxed.text.empty());
  EXPECT_LT(boxed.text.size(), free.text.size());
  EXPECT_EQ(free.text.rfind(boxed.text, 0), 0u);
  EXPECT_LE(text_width(boxed.text, boxed.size, false), 25);
}

TEST_F(PrintReport, AnEmptyFormStillGivesItsSheet) {
  write_template(folder_, "E.rpt", "report form\ntable RECI\ntext 0 0 \"{CODIGO}\"\n");
  Document doc = run("E.rpt");
  ASSERT_EQ(doc.pages.size(), 1u);
  EXPECT_TRUE(doc.pages[0].items.empty());
}

TEST_F(PrintReport, FaultsOfTemplateAndDataAreErrors) {
  write_template(folder_, "U.rpt", "report list\ntable RECI\ncolumn \"X\" 20 \"{NADA}\"\n");
  write_template(folder_, "T.rpt", "report list\ntable NADA\ncolumn \"X\" 20 \"{A}\"\n");
  EXPECT_EQ(error_number([&] { run("NAOEXISTE.rpt"); }), kBadTemplate);
  EXPECT_EQ(error_number([&] { run("U.rpt"); }), kBadTemplate);
  EXPECT_NE(error_number([&] { run("T.rpt"); }), 0);
  EXPECT_EQ(error_number([&] { run("U.rpt", "{RECI.CODIGO} = 'D'Ávila"); }), 3075);
}

TEST_F(PrintReport, TheDataFolderCopyWinsOverTheShippedOne) {
  write_template(folder_, "RECI.rpt", "report form\ntable RECI\ntext 0 0 \"AJUSTADO {CODIGO}\"\n");
  add_receipt("00001", "ANA", "01/11/2026", "1");
  EXPECT_EQ(page_text(run("reci.RPT").pages[0]), std::vector<std::string>{"AJUSTADO 00001"});
}

}  // namespace
}  // namespace mz::print
