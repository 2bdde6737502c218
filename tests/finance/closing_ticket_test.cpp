// The day closing ticket of Contas line for line on the system printer and
// byte for byte on the raw port: the settled rows due on the day, the day's
// sales counted once a sale, the movement by type and by remark, and the
// three wordings that differ between the modes.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/error.h"
#include "shell/program.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::finance {
namespace {

struct Fixture {
  testing::ScratchFolder folder;
  ui::TestHost host;
  ui::Runtime rt{host};
  Fixture() {
    shell::program().register_screens(rt);
    host.clock = Date::from_ymd_hms(2026, 11, 22, 18, 0, 0);
    sql("\\EMPE.Mdb", "Update EMPE set A1 = 'LOJA MODELO'");
    sql("\\A1.mdb", "Delete from A1");
    for (const char* form : {"DINHEIRO", "CHEQUE", "PIX"})
      sql("\\A1.mdb", std::string("Insert into A1 (A1) values ('") + form + "')");
    sql("\\A2.mdb", "Delete from A1");
    for (const char* seller : {"BALCÃO", "ANA"})
      sql("\\A2.mdb", std::string("Insert into A1 (A1) values ('") + seller + "')");
    const char* accounts[] = {
        // Settled on the day: under ENTRADAS and in its type.
        "'000001', 'Receber', #11/22/2026#, #11/22/2026#, '00000042', '219,7', 'Venda Balcão', 'DINHEIRO', '', 'F'",
        "'000002', 'Pagar', #11/22/2026#, #11/22/2026#, '77', '500', 'ALUGUEL', 'BOLETO', '', 'F'",
        // Due on the day, moved the day before: under ENTRADAS only.
        "'000003', 'Receber', #11/21/2026#, #11/22/2026#, '15', '0,5', 'Parcela', 'CHEQUE', '', 'F'",
        // Open, issued on the day: in its type and its remark, not under ENTRADAS.
        "'000004', 'Receber', #11/22/2026#, #12/22/2026#, '00000043', '100', 'Venda Balcão', 'CHEQUE', 'ANA', 'A'",
        "'000005', 'Pagar', #11/22/2026#, #11/22/2026#, '78', '1234,5', 'FORNECEDOR', 'PIX', '', 'F'",
    };
    for (const char* values : accounts)
      sql("\\Contas.Mdb", std::string("Insert into Cada (CODIGO, D1, D2, D3, D4, D5, D6, D7, D8, BX) values (") +
                              values + ")");
    // Two lines of one sale repeat its value; a sale of the day before is out.
    const char* lines[] = {"'00000042', #11/22/2026#, 'ANA', 'DINHEIRO', 219.7",
                           "'00000042', #11/22/2026#, 'ANA', 'DINHEIRO', 219.7",
                           "'00000043', #11/22/2026#, 'ANA', 'CHEQUE', 100",
                           "'00000040', #11/21/2026#, 'ANA', 'PIX', 50"};
    for (const char* values : lines)
      sql("\\VENDA.Mdb",
          std::string("Insert into VENDA (CODIGO, DATA, VENDEDOR, PAGAMENTO, VALOR) values (") + values + ")");
  }
  static void sql(const char* file, const std::string& statement) {
    store::Workspace::open_database(file).execute(statement);
  }
  void answer(ui::Answer a) { host.answers.push_back({a, "", false}); }
};

const std::vector<std::string> kGraphic = {
    " ",
    "  -----------------------------------------------------",
    "  LOJA MODELO",
    " FECHAMENTO DE MOVIMENTO - DATA: 22/11/2026",
    "  -----------------------------------------------------",
    " ENTRADAS",
    "  00000042  | 219,70",
    "  15  | ,50",
    "  -----------------------------------------------------",
    "  SAIDAS",
    "  ALUGUEL  | 500,00",
    "  FORNECEDOR  | 1.234,50",
    "  -----------------------------------------------------",
    " TOTAL DE ENTRADAS R$. 220,20",
    " TOTAL DE SAIDAS   R$. 1.734,50",
    " SALDO R$............. -1.514,30",
    "",
    " VENDAS DO DIA R$.319,70",
    "",
    "",
    "  -----------------------------------------------------",
    " VENDAS POR FORMA DE PAGAMENTO",
    "  >CHEQUE  > R$: 100,00",
    "  >DINHEIRO  > R$: 219,70",
    "  >PIX  > R$: 1.234,50",
    "  -----------------------------------------------------",
    " VENDAS POR VENDEDOR",
    "  >ANA  > R$: 100,00",
    "  >BALCÃO  > R$: 0,00",
    "", "", "", "", "", "", "", "",
};

#define L "\x1B\x0F"
const char kDos[] =
    L " \r\n"
    L "  -----------------------------------------------------\r\n"
    L "  LOJA MODELO\r\n"
    L " FECHAMENTO DE MOVIMENTO - DATA: 22/11/2026\r\n"
    L "  -----------------------------------------------------\r\n"
    L " ENTRADAS\r\n"
    L "  00000042  | 219,70\r\n"
    L "  15  | ,50\r\n"
    L "  -----------------------------------------------------\r\n"
    L " SAIDAS\r\n"
    L "  ALUGUEL  | 500,00\r\n"
    L "  FORNECEDOR  | 1.234,50\r\n"
    L "  -----------------------------------------------------\r\n"
    L " TOTAL DE ENTRADAS R$. 220,20\r\n"
    L " TOTAL DE SAIDAS   R$. 1.734,50\r\n"
    L "             SALDO R$.-1.514,30\r\n"
    L "\r\n"
    L " VENDAS DO DIA R$.319,70\r\n"
    L "\r\n"
    L "\r\n"
    L "  -----------------------------------------------------\r\n"
    L " VENDAS POR FORMA DE PAGAMENTO\r\n"
    L " >CHEQUE  > R$: 100,00\r\n"
    L " >DINHEIRO  > R$: 219,70\r\n"
    L " >PIX  > R$: 1.234,50\r\n"
    L "  -----------------------------------------------------\r\n"
    L " VENDAS POR VENDEDOR\r\n"
    L " >ANA  > R$: 100,00\r\n"
    L " >BALC\xC3O  > R$: 0,00\r\n"
    L "\r\n" L "\r\n" L "\r\n" L "\r\n" L "\r\n" L "\r\n" L "\r\n" L "\r\n";
#undef L

TEST(ClosingTicket, GraphicModeDrawsEveryLineOnTheSystemPrinter) {
  Fixture fx;
  ui::Form& f = fx.rt.show("Contas");
  fx.answer(ui::Answer::Yes);
  fx.rt.click(f["sddssds"]);
  ASSERT_EQ(fx.host.messages.size(), 1u);
  EXPECT_EQ(fx.host.messages[0].text, "Confirma impressão do fechamento de caixa?");
  ASSERT_EQ(fx.host.printed.size(), 1u);
  EXPECT_EQ(fx.host.printed[0].font, "ARIAL");
  ASSERT_EQ(fx.host.printed[0].pages.size(), 1u);
  EXPECT_EQ(fx.host.printed[0].pages[0], kGraphic);
  EXPECT_TRUE(fx.host.port_jobs.empty());
}

TEST(ClosingTicket, DosModeSendsCondensedLinesToThePort) {
  Fixture fx;
  ui::Form& f = fx.rt.show("Contas");
  fx.answer(ui::Answer::Yes);
  fx.rt.click(f["Mo"]);
  ASSERT_EQ(fx.host.messages.size(), 1u);
  EXPECT_EQ(fx.host.messages[0].text, "Confirma impressão do ticke de fechamento de caixa?");
  ASSERT_EQ(fx.host.port_jobs.size(), 1u);
  EXPECT_EQ(fx.host.port_jobs[0], std::string(kDos));
  EXPECT_TRUE(fx.host.printed.empty());
}

TEST(ClosingTicket, NoPrintsNothing) {
  Fixture fx;
  ui::Form& f = fx.rt.show("Contas");
  for (const char* item : {"Mo", "sddssds"}) {
    fx.answer(ui::Answer::No);
    fx.rt.click(f[item]);
  }
  EXPECT_TRUE(fx.host.port_jobs.empty());
  EXPECT_TRUE(fx.host.printed.empty());
}

// The fields decide the day: the closing of the day before shows its own
// rows, and the period of the two lists runs from D2 to D3.
TEST(ClosingTicket, ReadsTheDayFromTheFields) {
  Fixture fx;
  ui::Form& f = fx.rt.show("Contas");
  f["D2"].set_text("21/11/2026");
  f["D3"].set_text("22/11/2026");
  fx.answer(ui::Answer::Yes);
  fx.rt.click(f["sddssds"]);
  const std::vector<std::string>& lines = fx.host.printed.at(0).pages.at(0);
  auto has = [&lines](const std::string& line) { return std::find(lines.begin(), lines.end(), line) != lines.end(); };
  EXPECT_TRUE(has(" FECHAMENTO DE MOVIMENTO - DATA: 21/11/2026"));
  EXPECT_TRUE(has(" TOTAL DE ENTRADAS R$. 0,00"));
  EXPECT_TRUE(has(" VENDAS DO DIA R$.50,00"));
  EXPECT_TRUE(has("  >CHEQUE  > R$: 100,50"));
}

// A port that cannot be opened fails the command, as nothing traps it.
class DeadPortHost : public ui::TestHost {
 public:
  void send_to_port(const std::string&) override { throw Error(57, "Erro de E/S no dispositivo"); }
};

TEST(ClosingTicket, ADeadPortIsAFailureOfTheCommand) {
  testing::ScratchFolder folder;
  DeadPortHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  ui::Form& f = rt.show("Contas");
  host.answers.push_back({ui::Answer::Yes, "", false});
  EXPECT_THROW(rt.click(f["Mo"]), Error);
}

}  // namespace
}  // namespace mz::finance
