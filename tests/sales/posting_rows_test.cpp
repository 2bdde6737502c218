// The rows a recorded sale leaves in its four files.
#include <gtest/gtest.h>

#include "sales/stored_rows.h"
#include "sales/venda/posting.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "support/scratch_folder.h"

namespace mz::sales {
namespace {

const Date kToday = Date::from_ymd(2026, 11, 24);

SaleOnScreen counter_sale() {
  SaleOnScreen s;
  s.c1 = "Maria D'Ávila";
  s.c2 = "3333-4444";
  s.c3 = "123.456.789-00";
  s.ven = "JOANA";
  s.k1 = "24/11/2026";
  s.k4 = "DINHEIRO";
  s.k5 = "";
  s.w1 = "80,00";
  s.w2 = "0,00";
  s.w3 = "80,00";
  s.w4 = "0,00";
  s.w5 = "0,00";
  s.w6 = "80,00";
  s.a2 = "P";
  s.items = {{"2", ">001203-CAMISA POLO", "M", "40,00", "80,00"}};
  return s;
}

struct Case {
  const char* name;
  SaleOnScreen sale;
  std::vector<std::string> venda1;  // CODIGO, W4, W5, W6, C1, K1..K5
  std::vector<std::string> accounts;  // CODIGO, D1, D2, D3, D4, D5, D6, D9, BX, PG, VP, D10, GRUPO, NOME
  std::string cash;                   // codigo, A1, A2, A3, A4, A5, A6, PLANO
  std::string valor = "80";           // W3 as the number column VALOR holds it
};

std::vector<Case> cases() {
  std::vector<Case> all;
  {
    Case c{"one line, nothing paid", counter_sale(), {}, {}, {}};
    c.venda1 = {"00000001|0,00|0,00|80,00|Maria D'Ávila|24/11/2026|~|~|DINHEIRO|"};
    c.accounts = {
        "000001|Receber|24/11/2026|24/11/2026|00000001|80|Venda Balcão|Maria D'Ávila|F|24/11/2026|P|Venda|Venda|~"};
    c.cash = "0000001|24/11/2026|Crédito|00000001|DINHEIRO|0|Maria D'Ávila|JOANA";
    all.push_back(c);
  }
  {
    Case c{"paid more than the total", counter_sale(), {}, {}, {}};
    c.sale.w4 = "100,00";
    c.sale.w5 = "20,00";
    c.sale.w6 = "0,00";
    c.venda1 = {"00000001|100,00|20,00|0,00|Maria D'Ávila|24/11/2026|~|~|DINHEIRO|"};
    c.accounts = {
        "000001|Receber|24/11/2026|24/11/2026|00000001|80|Venda Balcão|Maria D'Ávila|F|24/11/2026|P|Venda|Venda|~"};
    c.cash = "0000001|24/11/2026|Crédito|00000001|DINHEIRO|100|Maria D'Ávila|JOANA";
    all.push_back(c);
  }
  {
    Case c{"instalments, nothing paid", counter_sale(), {}, {}, {}};
    c.sale.k4 = "CARNÊ";
    c.sale.k5 = "2";
    c.sale.instalments = {{"1", "24/12/2026", "40,00", "CONTAS", "CARNÊ"},
                          {"2", "23/01/2027", "40,00", "CONTAS", "CARNÊ"}};
    c.venda1 = {"00000001|0,00|0,00|80,00|Maria D'Ávila|1|24/12/2026|40,00|CONTAS|CARNÊ",
                "00000001|0,00|0,00|80,00|Maria D'Ávila|2|23/01/2027|40,00|CONTAS|CARNÊ"};
    c.accounts = {"000001|Receber|24/11/2026|24/12/2026|00000001|40|Venda Balcão Nr: 00000001|Maria D'Ávila|A|~|~|"
                  "Venda parcelada|Venda parcelada|",
                  "000002|Receber|24/11/2026|23/01/2027|00000001|40|Venda Balcão Nr: 00000001|Maria D'Ávila|A|~|~|"
                  "Venda parcelada|Venda parcelada|"};
    c.cash = "0000001|24/11/2026|Crédito|00000001|CARNÊ|0|Maria D'Ávila|JOANA";
    all.push_back(c);
  }
  {
    // 100,00 left in three equal lines: 99,99 in all, the cent is not moved.
    Case c{"down payment and three instalments", counter_sale(), {}, {}, {}};
    c.sale.w1 = c.sale.w3 = "150,00";
    c.valor = "150";
    c.sale.w4 = "50,00";
    c.sale.w6 = "100,00";
    c.sale.k4 = "CARNÊ";
    c.sale.k5 = "3";
    c.sale.items = {{"1", ">001201-CAMISA POLO", "PP", "50,00", "50,00"},
                    {"2", ">001203-CAMISA POLO", "M", "50,00", "100,00"}};
    c.sale.instalments = {{"1", "24/12/2026", "33,33", "CAIXA", "CARNÊ"},
                          {"2", "23/01/2027", "33,33", "CAIXA", "CARNÊ"},
                          {"3", "22/02/2027", "33,33", "CAIXA", "CARNÊ"}};
    for (int i = 1; i <= 3; ++i) {
      const auto& line = c.sale.instalments[i - 1];
      c.venda1.push_back("00000001|50,00|0,00|100,00|Maria D'Ávila|" + line[0] + "|" + line[1] + "|33,33|CAIXA|CARNÊ");
    }
    c.accounts = {"000001|Receber|24/11/2026|24/11/2026|00000001|50|Entrada - Venda Balcão|Maria D'Ávila|F|24/11/2026|"
                  "P|Venda|Venda|~"};
    for (int i = 1; i <= 3; ++i)
      c.accounts.push_back("00000" + std::to_string(i + 1) + "|Receber|24/11/2026|" + c.sale.instalments[i - 1][1] +
                           "|00000001|33,33|Venda Balcão Nr: 00000001|Maria D'Ávila|A|~|~|Venda parcelada|"
                           "Venda parcelada|");
    c.cash = "0000001|24/11/2026|Crédito|00000001|CARNÊ|50|Maria D'Ávila|JOANA";
    all.push_back(c);
  }
  return all;
}

TEST(SalePostingRows, EachCaseWritesItsRowsInAllFourFiles) {
  for (const Case& c : cases()) {
    SCOPED_TRACE(c.name);
    testing::ScratchFolder folder;
    EXPECT_EQ(post_sale(c.sale, kToday), "00000001");
    auto lines = stored_rows("VENDA.MDB", "SELECT CODIGO, NOME, DATA, VENDEDOR, PAGAMENTO, VALOR, PARCELA, QTDA, "
                                   "REFERENCIA, V1, V2, V3, V4 FROM VENDA ORDER BY V1");
    ASSERT_EQ(lines.size(), c.sale.items.size());
    for (size_t i = 0; i < lines.size(); ++i) {
      const auto& item = c.sale.items[i];
      EXPECT_EQ(lines[i], "00000001|Maria D'Ávila|24/11/2026|JOANA|" + c.sale.k4 + "|" + c.valor + "|" +
                              c.sale.k5 + "|" + item[0] + "|0012|" + item[1] + "|" + item[2] + "|" + item[3] + "|" +
                              item[4]);
    }
    EXPECT_EQ(stored_rows("VENDA1.MDB", "SELECT CODIGO, W4, W5, W6, C1, K1, K2, K3, K4, K5 FROM VENDA ORDER BY K1"),
              c.venda1);
    EXPECT_EQ(stored_rows("VENDA1.MDB", "SELECT W1, W2, W3, DATA, VENDEDOR, C2, C3 FROM VENDA GROUP BY W1, W2, W3, DATA, "
                                 "VENDEDOR, C2, C3"),
              std::vector<std::string>{c.sale.w1 + "|0,00|" + c.sale.w3 + "|24/11/2026|JOANA|3333-4444|123.456.789-00"});
    auto accounts = stored_rows("Contas.Mdb", "SELECT CODIGO, D1, D2, D3, D4, D5, D6, D9, BX, PG, VP, D10, GRUPO, NOME "
                                       "FROM CADA ORDER BY CODIGO");
    EXPECT_EQ(accounts, c.accounts);
    EXPECT_EQ(stored_rows("Contas.Mdb", "SELECT D7, D8 FROM CADA GROUP BY D7, D8"),
              std::vector<std::string>{c.sale.k4 + "|"});
    EXPECT_EQ(stored_rows("Caixa.Mdb", "SELECT codigo, A1, A2, A3, A4, A5, A6, PLANO FROM Cada"),
              std::vector<std::string>{c.cash});
  }
}

// The code's size slot takes the quantity; a slot outside the grid leaves all 50 at 0.
TEST(SalePostingRows, TheSizeSlotOfTheCodeHoldsTheQuantity) {
  testing::ScratchFolder folder;
  SaleOnScreen s = counter_sale();
  s.items = {{"2", ">001203-CAMISA POLO", "M", "40,00", "80,00"},
             {"1", ">001250-CAMISA POLO", "XG", "40,00", "40,00"},
             {"5", ">001299-CAMISA POLO", "", "40,00", "200,00"}};
  post_sale(s, kToday);
  auto slots = stored_rows("VENDA.MDB", "SELECT QTDA, X1, X3, X50, X1+X2+X3+X4+X5+X6+X7+X8+X9+X10+X11+X12+X13+X14+X15+X16+"
                                 "X17+X18+X19+X20+X21+X22+X23+X24+X25+X26+X27+X28+X29+X30+X31+X32+X33+X34+X35+X36+X37+"
                                 "X38+X39+X40+X41+X42+X43+X44+X45+X46+X47+X48+X49+X50 FROM VENDA ORDER BY V1");
  EXPECT_EQ(slots, (std::vector<std::string>{"2|0|2|0|2", "1|0|0|1|1", "5|0|0|0|0"}));
}

// Numbers and codes go on from the highest on file, each in its own width.
TEST(SalePostingRows, KeysFollowTheHighestOnFile) {
  testing::ScratchFolder folder;
  store::Workspace::open_database("VENDA.MDB").execute("Insert into VENDA (CODIGO, QTDA) values ('00000041', 1)");
  store::Workspace::open_database("Contas.Mdb").execute("Insert into Cada (CODIGO, D1) values ('000099', 'Pagar')");
  store::Workspace::open_database("Caixa.Mdb").execute("Insert into Cada (codigo, A2) values ('0000999', 'Débito')");
  SaleOnScreen s = counter_sale();
  EXPECT_EQ(post_sale(s, kToday), "00000042");
  EXPECT_EQ(post_sale(s, kToday), "00000043");
  EXPECT_EQ(stored_rows("Contas.Mdb", "SELECT CODIGO, D4 FROM CADA WHERE D1 = 'Receber' ORDER BY CODIGO"),
            (std::vector<std::string>{"000100|00000042", "000101|00000043"}));
  EXPECT_EQ(stored_rows("Caixa.Mdb", "SELECT codigo, A3 FROM Cada WHERE A2 = 'Crédito' ORDER BY codigo"),
            (std::vector<std::string>{"0001000|00000042", "0001001|00000043"}));
}

}  // namespace
}  // namespace mz::sales
