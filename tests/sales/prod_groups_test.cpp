// Prod makes its lists from the period's lines read once: its groups must
// be the ones the store's grouped statements give, quirks of the shop's
// collation included, and a reference missing from GRUPO costs 0.
#include <gtest/gtest.h>

#include "sales/prod/results.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "support/scratch_folder.h"

namespace mz::sales::prod {
namespace {

struct Sold {
  const char* codigo;
  const char* v1;  // nullptr for a null
  const char* v3;
  const char* referencia;
  const char* v2;
  int qtda;
  double valor;
};

// Texts equal case aside, accented letters beside their plain ones, signs
// between the upper and the lower case letters, nulls, and a line outside
// the period.
const Sold kLines[] = {
    {"00000001", ">000101-camisa", "10,00", "0001", "P", 1, 50},
    {"00000001", ">000101-CAMISA", "10,00", "0001", "p", 2, 50},
    {"00000002", ">000101-CAMISA", "12,00", "0001", "P", 1, 12},
    {"00000002", ">000201-Ávila", "5,00", "0002", "U", 3, 12},
    {"00000003", ">000201-Avila", "5,00", "0002", "U", 1, 30},
    {"00000003", ">000201-Bota", "5,00", "0002", "U", 1, 30},
    {"00000003", ">000201-_x", "5,00", "0002", "U", 1, 30},
    {"00000004", nullptr, "7,00", "0003", nullptr, 2, 14},
    {"00000004", ">000301-", "7,00", "0003", "", 1, 14},
    {"00000005", ">000101-CAMISA", "10,00", "0001", "P", 4, 99},
};

class ProdGroups : public ::testing::Test {
 protected:
  void SetUp() override {
    store::Database venda = store::Workspace::open_database("\\VENDA.MDB");
    for (const Sold& s : kLines) {
      const char* day = s.codigo == std::string("00000005") ? "#04/01/2026#" : "#03/10/2026#";
      venda.execute("Insert into VENDA (CODIGO, NOME, DATA, VALOR, QTDA, REFERENCIA, V1, V2, V3) values (" +
                    store::sql_quote(s.codigo) + ", 'ANA', " + day + ", " + std::to_string(s.valor) + ", " +
                    std::to_string(s.qtda) + ", " + store::sql_quote(s.referencia) + ", " +
                    (s.v1 ? store::sql_quote(s.v1) : "Null") + ", " + (s.v2 ? store::sql_quote(s.v2) : "Null") +
                    ", " + store::sql_quote(s.v3) + ")");
    }
    store::Workspace::open_database("\\REFE.MDB")
        .execute("Insert into GRUPO (GR, E7) values ('0001', '4,00')");
    store::Workspace::open_database("\\REFE.MDB")
        .execute("Insert into GRUPO (GR, E7) values ('0003', '1,50')");
  }

  // Each row's columns as the screen shows them, joined by "|".
  static std::vector<std::string> statement_rows(const std::string& sql) {
    std::vector<std::string> out;
    store::Database venda = store::Workspace::open_database("\\VENDA.MDB");
    for (store::Recordset rs = venda.open_recordset(sql); !rs.eof(); rs.move_next()) {
      std::string row;
      for (size_t i = 0; i < rs.field_count(); ++i) row += (i ? "|" : "") + rs[i].text();
      out.push_back(row);
    }
    return out;
  }

  testing::ScratchFolder folder_;
  const Period march_{"03/01/2026", "03/31/2026", "01/03/2026", "31/03/2026"};
};

TEST_F(ProdGroups, ProductsAreTheGroupsOfTheGroupedStatement) {
  const ProductTotals totals = product_totals(period_lines(march_), Costs());
  std::vector<std::string> ours;
  for (const auto& row : totals.rows) ours.push_back(row[0] + "|" + row[2] + "|" + row[4] + "|" + row[1] + "|" + row[3]);
  EXPECT_EQ(ours, statement_rows("SELECT SUM(QTDA), V1, V3, REFERENCIA, V2 FROM VENDA WHERE " + march_.between() +
                                 " GROUP BY V1, V3, REFERENCIA, V2 ORDER BY V1, V3, REFERENCIA, V2"));
}

TEST_F(ProdGroups, TotalsCountAMissingReferenceAtCostZero) {
  const ProductTotals totals = product_totals(period_lines(march_), Costs());
  // 0001: 3 x 10,00 + 1 x 12,00 at cost 4,00; 0002 (no card): 6 x 5,00;
  // 0003: 3 x 7,00 at cost 1,50.
  EXPECT_EQ(money(totals.sales), "93,00");
  EXPECT_EQ(money(totals.cost), "20,50");
}

TEST_F(ProdGroups, RankingSumsEachReferenceWithItsFirstDescription) {
  const Rows ranked = ranking(period_lines(march_));
  ASSERT_EQ(ranked.size(), 3u);
  // The least description in the collation: "Avila" before "Ávila", and
  // letters before "_".
  EXPECT_EQ(ranked[0], (std::vector<std::string>{"00006", "0002", ">000201-Avila"}));
  EXPECT_EQ(ranked[1], (std::vector<std::string>{"00004", "0001", ">000101-camisa"}));
  EXPECT_EQ(ranked[2], (std::vector<std::string>{"00003", "0003", ">000301-"}));
  EXPECT_EQ(statement_rows("SELECT MIN(V1) FROM VENDA WHERE " + march_.between() + " GROUP BY REFERENCIA"),
            (std::vector<std::string>{ranked[1][2], ranked[0][2], ranked[2][2]}));
}

TEST_F(ProdGroups, ChargedTotalTakesEachSaleOnce) {
  Currency by_statement;
  for (const SaleRow& s : period_sales(march_)) by_statement = by_statement + amount_of(s.total);
  EXPECT_EQ(money(charged_total(period_lines(march_))), money(by_statement));
  EXPECT_EQ(money(by_statement), "106,00");
}

}  // namespace
}  // namespace mz::sales::prod
