// The prints of a sale from the picture of VENDA's screen: the two tickets
// line for line and byte for byte, their edges, the booklet's and the A4
// sheet's work tables, refusals and printer failures.
#include "sales/printing.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "core/error.h"
#include "print/page.h"
#include "shell/program.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::sales {
namespace {

// A port that is not there: the printer switched off or the cable out.
class DeadPortHost : public ui::TestHost {
 public:
  void send_to_port(const std::string&) override { throw Error(57, "Erro de E/S no dispositivo"); }
};

struct Fixture {
  testing::ScratchFolder folder;
  ui::TestHost host;
  ui::Runtime rt{host};
  Fixture() {
    sql("\\EMPE.Mdb",
        "Update EMPE set A1 = 'LOJA MODELO', A2 = '(11) 3333-4444', A3 = 'RUA DAS FLORES, 10', A4 = 'SÃO PAULO', "
        "A5 = 'OBRIGADO PELA PREFERÊNCIA', A6 = 'VOLTE SEMPRE'");
    host.clock = Date::from_ymd_hms(2026, 11, 22, 14, 5, 0);
  }
  static void sql(const char* file, const std::string& statement) {
    store::Workspace::open_database(file).execute(statement);
  }
  static std::vector<std::string> rows(const char* file, const std::string& statement) {
    std::vector<std::string> out;
    store::Database db = store::Workspace::open_database(file);
    for (store::Recordset rs = db.open_recordset(statement); !rs.eof(); rs.move_next()) {
      std::string row;
      for (size_t i = 0; i < rs.field_count(); ++i) row += (i ? "|" : "") + rs[i].text();
      out.push_back(row);
    }
    return out;
  }
  std::vector<std::string> printed_lines() const { return host.printed.at(0).pages.at(0); }
  void answer(ui::Answer a) { host.answers.push_back({a, "", false}); }
};

// Two lines, a customer with accents, a discount in money, change.
SaleOnScreen full_sale() {
  SaleOnScreen s;
  s.codigo = "00000042";
  s.c1 = "JOSÉ DA CONCEIÇÃO";
  s.c2 = "(11) 99999-0000";
  s.c3 = "123.456.789-00";
  s.ven = "ANA";
  s.k4 = "DINHEIRO";
  s.k5 = "";
  s.w1 = "229,70";
  s.w2 = "10,00";
  s.w3 = "219,70";
  s.w4 = "250,00";
  s.w5 = "30,30";
  s.w6 = "0,00";
  s.items = {{"2", ">000701-CAMISA POLO", "M", "69,90", "139,80"},
             {"1", ">001242-BERMUDA JEANS", "42", "89,9", "89,90"}};
  return s;
}

const std::vector<std::string> kCupomA = {
    "  ",
    "  LOJA MODELO",
    "  (11) 3333-4444",
    "  RUA DAS FLORES, 10",
    "  SÃO PAULO",
    " ",
    "Data:   22/11/2026 -  Hora: 14:05 - Nr.: 00000042",
    " ",
    "  Cliente:   JOSE DA CONCEICAO",
    "  Telefone:  (11) 99999-0000",
    "  Documento: 123.456.789-00",
    " ",
    "  Qtda. Produto                         Vlr.Unit.",
    " ",
    "  2    >000701-CAMISA POLO                  69,90",
    "  1    >001242-BERMUDA JEANS                89,90",
    " ",
    "  Vendedor: ANA",
    "  Forma pagamento: DINHEIRO",
    "                             Sub Total: 229,70",
    "                             Desconto: 10,00",
    "                             Total: 219,70",
    "                             Troco: 30,30",
    " ",
    "  OBRIGADO PELA PREFERÊNCIA",
    "  VOLTE SEMPRE",
    "", "", "", "", "", "", "", "",
};

// What the dot-matrix printer receives: condensed mode before every line,
// CR LF after it, accents in the printer's code page.
const char kCupomB[] =
    "\x1B\x0F  \r\n"
    "\x1B\x0F  LOJA MODELO\r\n"
    "\x1B\x0F  (11) 3333-4444\r\n"
    "\x1B\x0F  RUA DAS FLORES, 10\r\n"
    "\x1B\x0F  S\xC3O PAULO\r\n"
    "\x1B\x0F \r\n"
    "\x1B\x0F  -----------------------------------------------------\r\n"
    "\x1B\x0F" "Data:   22/11/2026 -  Hora: 14:05 - Nr.: 00000042\r\n"
    "\x1B\x0F  -----------------------------------------------------\r\n"
    "\x1B\x0F \r\n"
    "\x1B\x0F   Cliente:   JOSE DA CONCEICAO\r\n"
    "\x1B\x0F   Telefone:  (11) 99999-0000\r\n"
    "\x1B\x0F   Documento: 123.456.789-00\r\n"
    "\x1B\x0F \r\n"
    "\x1B\x0F  Qtda. Produto                         Vlr.Unit.\r\n"
    "\x1B\x0F \r\n"
    "\x1B\x0F  2    >000701-CAMISA POLO                  69,90\r\n"
    "\x1B\x0F  1    >001242-BERMUDA JEANS                89,90\r\n"
    "\x1B\x0F \r\n"
    "\x1B\x0F  Vendedor:   ANA\r\n"
    "\x1B\x0F  Forma Pgto: DINHEIRO\r\n"
    "\x1B\x0F                             Sub Total: 229,70\r\n"
    "\x1B\x0F                             Desconto: 10,00\r\n"
    "\x1B\x0F                             Total: 219,70\r\n"
    "\x1B\x0F                             Valor pago: 250,00\r\n"
    "\x1B\x0F                             Troco: 30,30\r\n"
    "\x1B\x0F \r\n"
    "\x1B\x0F  OBRIGADO PELA PREFER\xCANCIA\r\n"
    "\x1B\x0F  VOLTE SEMPRE\r\n"
    "\x1B\x0F  -----------------------------------------------------\r\n"
    "\x1B\x0F\r\n\x1B\x0F\r\n\x1B\x0F\r\n\x1B\x0F\r\n\x1B\x0F\r\n\x1B\x0F\r\n\x1B\x0F\r\n\x1B\x0F\r\n";

TEST(SalePrinting, CupomAOnThePagePrinterInArialEight) {
  Fixture fx;
  fx.answer(ui::Answer::Yes);
  print_cupom_a(fx.rt, full_sale());
  ASSERT_EQ(fx.host.printed.size(), 1u);
  EXPECT_EQ(fx.host.printed[0].font, "ARIAL");
  EXPECT_EQ(fx.host.printed[0].size, 8);
  ASSERT_EQ(fx.host.printed[0].pages.size(), 1u);
  EXPECT_EQ(fx.printed_lines(), kCupomA);
  EXPECT_EQ(fx.host.messages.at(0).text, "Confirma impressão de cupom não fiscal (Jato de tinta/Laser)?");
}

TEST(SalePrinting, CupomBAsRawBytesOnThePort) {
  Fixture fx;
  fx.answer(ui::Answer::Yes);
  print_cupom_b(fx.rt, full_sale());
  ASSERT_EQ(fx.host.port_jobs.size(), 1u);
  EXPECT_EQ(fx.host.port_jobs[0], std::string(kCupomB));
  EXPECT_EQ(fx.host.messages.at(0).text, "Confirma impressão de cupom não fiscal em impressora (Matricial)?");
  EXPECT_TRUE(fx.host.printed.empty());
}

// Whether a ticket holds a line beginning with `start`, and the line.
std::string line_starting(const std::vector<std::string>& lines, const std::string& start) {
  for (const std::string& line : lines)
    if (line.compare(0, start.size(), start) == 0) return line;
  return "(none)";
}

std::vector<std::string> port_lines(const std::string& bytes) {
  std::vector<std::string> lines;
  for (size_t at = 0; at < bytes.size();) {
    size_t end = bytes.find("\r\n", at);
    lines.push_back(bytes.substr(at + 2, end - at - 2));  // behind ESC SI
    at = end + 2;
  }
  return lines;
}

TEST(SalePrinting, TicketEdgesOnBothPrinters) {
  struct Case {
    const char* what;
    void (*change)(SaleOnScreen&);
    const char* look_for_a;
    const char* look_for_b;
    const char* line;  // the whole line found, or "(none)"
  };
  const Case cases[] = {
      {"no customer", [](SaleOnScreen& s) { s.c1 = ""; }, "  Cliente:", "   Cliente:", "(none)"},
      {"no customer, no phone", [](SaleOnScreen& s) { s.c1 = ""; }, "  Telefone:", "   Telefone:", "(none)"},
      {"no discount", [](SaleOnScreen& s) { s.w2 = "0,00"; }, "                             Desconto: ",
       "                             Desconto: ", "(none)"},
      {"a percentage prints as typed", [](SaleOnScreen& s) { s.w2 = "10"; },
       "                             Desconto: ", "                             Desconto: ",
       "                             Desconto: 10,00"},
      {"no change", [](SaleOnScreen& s) { s.w5 = "0,00"; }, "                             Troco: ",
       "                             Troco: ", "(none)"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Fixture fx;
    SaleOnScreen sale = full_sale();
    c.change(sale);
    fx.answer(ui::Answer::Yes);
    fx.answer(ui::Answer::Yes);
    print_cupom_a(fx.rt, sale);
    print_cupom_b(fx.rt, sale);
    EXPECT_EQ(line_starting(fx.printed_lines(), c.look_for_a), c.line);
    EXPECT_EQ(line_starting(port_lines(fx.host.port_jobs.at(0)), c.look_for_b), c.line);
  }
}

TEST(SalePrinting, RefusedQuestionsPrintNothing) {
  Fixture fx;
  fx.answer(ui::Answer::No);
  fx.answer(ui::Answer::No);
  print_cupom_a(fx.rt, full_sale());
  print_cupom_b(fx.rt, full_sale());
  EXPECT_TRUE(fx.host.printed.empty());
  EXPECT_TRUE(fx.host.port_jobs.empty());
  EXPECT_EQ(fx.host.messages.size(), 2u);
}

TEST(SalePrinting, APortThatFailsGivesThePrinterMessage) {
  testing::ScratchFolder folder;
  DeadPortHost host;
  ui::Runtime rt{host};
  host.answers.push_back({ui::Answer::Yes, "", false});
  print_cupom_b(rt, full_sale());
  ASSERT_EQ(host.messages.size(), 2u);
  EXPECT_EQ(host.messages[1].text, "Operação não realizada. Verifique a impressora.");
}

TEST(SalePrinting, FormatoCupomWithEveryFigureAndTheItemCount) {
  Fixture fx;
  SaleOnScreen sale = full_sale();
  sale.w2 = "0,00";
  sale.w5 = "0,00";
  print_cupom_format(fx.rt, sale);
  ASSERT_EQ(fx.host.printed.size(), 1u);
  const std::vector<std::string> lines = fx.printed_lines();
  ASSERT_GE(lines.size(), 28u);
  const std::vector<std::string> body(lines.begin() + 5, lines.begin() + 28);
  const std::vector<std::string> expected = {
      "==============================================",
      "Data:   22/11/2026 -  Hora: 14:05 - Venda Nr.: 00000042",
      "==============================================",
      "   Cliente:   JOSÉ DA CONCEIÇÃO",
      "   Telefone:  (11) 99999-0000",
      "   Documento: 123.456.789-00",
      "==============================================",
      "  Codigo-Produto Tamanho Quant. Vlr Unit. Vlr Total",
      "  >000701-CAMISA POLO                       M",
      "  2  x       69,90 = 139,80",
      "  >001242-BERMUDA JEANS                     42",
      "  1  x       89,90 = 89,90",
      "==============================================",
      "  Vendedor:        ANA",
      "  Total de iten(s):3",
      " ",
      "                             Sub Total: 229,70",
      "                             Desconto:  0,00",
      "                             Total:     219,70",
      "                             Valor pago: 250,00",
      "                             Troco: 0,00",
      "==============================================",
      "  OBRIGADO PELA PREFERÊNCIA",
  };
  EXPECT_EQ(body, expected);
  EXPECT_TRUE(fx.host.messages.empty());
}

TEST(SalePrinting, BookletHasTwoRowsForEachInstalment) {
  Fixture fx;
  SaleOnScreen sale = full_sale();
  sale.k4 = "CARNÊ";
  sale.instalments = {{"1", "22/12/2026", "73,23", "", "CARNÊ"},
                      {"2", "21/01/2027", "73,23", "", "CARNÊ"},
                      {"3", "20/02/2027", "73,24", "", "CARNÊ"}};
  fx.sql("\\IMCARNE.MDB", "Insert into carne (CLIENTE, NUMPARCELA) values ('OF THE PRINT BEFORE', 9)");
  print_carne(fx.rt, sale);
  EXPECT_EQ(fx.rows("\\IMCARNE.MDB",
                    "Select Empresa, CLIENTE, Compra, PGTO, PARCELA, VENC, VLRPARCELA, NUMPARCELA from carne"),
            (std::vector<std::string>{
                "False|JOSÉ DA CONCEIÇÃO|219,70|CARNÊ|1|22/12/2026|73,23|1",
                "False|JOSÉ DA CONCEIÇÃO|219,70|CARNÊ|1|22/12/2026|73,23|1",
                "False|JOSÉ DA CONCEIÇÃO|219,70|CARNÊ|2|21/01/2027|73,23|2",
                "False|JOSÉ DA CONCEIÇÃO|219,70|CARNÊ|2|21/01/2027|73,23|2",
                "False|JOSÉ DA CONCEIÇÃO|219,70|CARNÊ|3|20/02/2027|73,24|3",
                "False|JOSÉ DA CONCEIÇÃO|219,70|CARNÊ|3|20/02/2027|73,24|3",
            }));
  ASSERT_EQ(fx.host.reports.size(), 1u);
  EXPECT_EQ(fx.host.reports[0].request.report_file_name, "\\CARNE.RPT");
  EXPECT_EQ(fx.host.reports[0].request.data_file, "\\IMCARNE.MDB");
  // Two halves a sheet: three sheets, each with the instalment twice.
  ASSERT_EQ(fx.host.reports[0].document.pages.size(), 3u);
  const std::vector<std::string> sheet = print::page_text(fx.host.reports[0].document.pages[1]);
  int shown = 0;
  for (const std::string& line : sheet)
    if (line.find("21/01/2027") != std::string::npos) ++shown;
  EXPECT_EQ(shown, 2);
}

TEST(SalePrinting, BookletWithoutInstalmentsAsksForThemAndKeepsTheTable) {
  Fixture fx;
  fx.sql("\\IMCARNE.MDB", "Insert into carne (CLIENTE, NUMPARCELA) values ('OF THE PRINT BEFORE', 9)");
  print_carne(fx.rt, full_sale());
  ASSERT_EQ(fx.host.messages.size(), 1u);
  EXPECT_EQ(fx.host.messages[0].text, "Lance o parcelamento antes de imprimir o carnê.");
  EXPECT_TRUE(fx.host.reports.empty());
  EXPECT_EQ(fx.rows("\\IMCARNE.MDB", "Select CLIENTE from carne"), std::vector<std::string>{"OF THE PRINT BEFORE"});
}

TEST(SalePrinting, A4SheetHasARowForEachLineWithTheShopAndTheSale) {
  Fixture fx;
  fx.sql("\\VENDA.MDB", "Insert into VENDA (CODIGO, DATA) values ('00000042', #11/03/2026#)");
  fx.sql("\\impeven.Mdb", "Insert into impeven (NR) values ('00000001')");
  print_a4(fx.rt, full_sale());
  EXPECT_EQ(fx.rows("\\impeven.Mdb",
                    "Select X1, X4, X6, NR, DATA, w2, w3, nome, ven, k4, P1, P2, P3, P4, P5 from impeven"),
            (std::vector<std::string>{
                "LOJA MODELO|SÃO PAULO|VOLTE SEMPRE|00000042|03/11/2026|10,00|219,70|JOSÉ DA CONCEIÇÃO|ANA|DINHEIRO|2|"
                ">000701-CAMISA POLO|M|69,90|139,80",
                "LOJA MODELO|SÃO PAULO|VOLTE SEMPRE|00000042|03/11/2026|10,00|219,70|JOSÉ DA CONCEIÇÃO|ANA|DINHEIRO|1|"
                ">001242-BERMUDA JEANS|42|89,9|89,90",
            }));
  ASSERT_EQ(fx.host.reports.size(), 1u);
  EXPECT_EQ(fx.host.reports[0].request.report_file_name, "\\impeven.rpt");
  EXPECT_EQ(fx.host.reports[0].request.data_file, "\\impeven.Mdb");
}

TEST(SalePrinting, A4SheetOfASaleNotYetRecordedIsDatedToday) {
  Fixture fx;
  SaleOnScreen sale = full_sale();
  sale.codigo = "";
  print_a4(fx.rt, sale);
  EXPECT_EQ(fx.rows("\\impeven.Mdb", "Select distinct NR, DATA from impeven"),
            std::vector<std::string>{"|22/11/2026"});
}

TEST(SalePrinting, VendaimpreNamesThePrintServicesDefaultPrinter) {
  Fixture fx;
  shell::program().register_screens(fx.rt);
  setenv("PRINTER", "Balcao_Epson", 1);
  fx.rt.show("vendaimpre");
  unsetenv("PRINTER");
  EXPECT_EQ(fx.rt.screen("vendaimpre")["NOMEI"].text(), "Balcao_Epson");
  EXPECT_EQ(fx.rt.screen("vendaimpre")["Label2"].text(), "LPT1");
}

}  // namespace
}  // namespace mz::sales
