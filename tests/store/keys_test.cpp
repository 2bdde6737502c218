#include "store/keys.h"

#include <gtest/gtest.h>

#include "store/sql_text.h"
#include "support/scratch_folder.h"

namespace mz::store {
namespace {

using testing::ScratchFolder;

TEST(StoreKeys, NextKeyIsTheHighestPlusOneInTheMask) {
  struct Case {
    const char* file;
    KeyRule rule;
    const char* insert_prefix;  // the row with the given key, or nothing
    std::vector<const char*> keys;
    const char* expected;
  };
  const std::vector<Case> cases = {
      {"REFE.MDB", keys::kReference, "Insert into GRUPO (GR) values ", {}, "0001"},
      {"REFE.MDB", keys::kReference, "Insert into GRUPO (GR) values ", {"0001", "0007", "0003"}, "0008"},
      {"REFE.MDB", keys::kReference, "Insert into GRUPO (GR) values ", {"9999"}, "10000"},
      // "10000" sorts below "9999" as text: the same key is offered again.
      {"REFE.MDB", keys::kReference, "Insert into GRUPO (GR) values ", {"9999", "10000"}, "10000"},
      {"CADA.MDB", keys::kCustomer, "Insert into Cada (CODIGO) values ", {"0041"}, "0042"},
      {"SALA.Mdb", keys::kEmployee, "Insert into SALA (X1) values ", {}, "0001"},
      {"RECI.Mdb", keys::kReceipt, "Insert into RECI (CODIGO) values ", {"00099"}, "00100"},
      {"DP.Mdb", keys::kTradeBill, "Insert into DP (CODIGO) values ", {}, "00001"},
      {"FORNEX.MDB", keys::kSupplier, "Insert into cli (a1) values ", {"000012"}, "000013"},
      {"TELEFONE.MDB", keys::kPhone, "Insert into TELEFONE (ID) values ", {}, "000001"},
      {"Contas.Mdb", keys::kAccount, "Insert into Cada (codigo) values ", {"000999"}, "001000"},
      {"Caixa.Mdb", keys::kCash, "Insert into Cada (codigo) values ", {}, "0000001"},
      {"ENTRA.MDB", keys::kMovement, "Insert into ENTRA (CODIGO) values ", {"00000005"}, "00000006"},
      {"SAI.MDB", keys::kMovement, "Insert into ENTRA (CODIGO) values ", {}, "00000001"},
      {"VENDA.Mdb", keys::kSale, "Insert into VENDA (CODIGO) values ", {"00000010", "00000009"}, "00000011"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.file) + " " + c.rule.statement);
    ScratchFolder folder;
    Database db = Workspace::open_database(c.file);
    for (const char* key : c.keys) db.execute(std::string(c.insert_prefix) + "(" + sql_quote(key) + ")");
    EXPECT_EQ(next_key(db, c.rule), c.expected);
  }
}

TEST(StoreSqlText, DatesForStatementsAndScreens) {
  const Date today = Date::from_ymd(2026, 11, 22);
  struct SqlCase {
    const char* typed;
    const char* expected;
  };
  for (const auto& c : std::vector<SqlCase>{{"", "11/22/2026"},
                                            {"05032026", "03/05/2026"},
                                            {"05/03/2026", "03/05/2026"},
                                            {"05/03/2026 10", ""}}) {
    SCOPED_TRACE(c.typed);
    EXPECT_EQ(data_sql(c.typed, today), c.expected);
  }
  struct TelaCase {
    Value read;
    const char* expected;
  };
  for (const auto& c : std::vector<TelaCase>{{Value("22112026"), "22/11/2026"},
                                             {Value("22/11/2026"), "22/11/2026"},
                                             {Value(Date::from_ymd(2026, 1, 5)), "05/01/2026"},
                                             {Value("2026-01-05"), "2026-01-05"},
                                             {Value("5/1/26"), ""},
                                             {Value::null(), ""}}) {
    SCOPED_TRACE(c.read.text());
    EXPECT_EQ(data_tela(c.read), c.expected);
  }
}

TEST(StoreSqlText, QuotingKeepsApostrophesInsideTheValue) {
  EXPECT_EQ(sql_quote("MARIA"), "'MARIA'");
  EXPECT_EQ(sql_quote("D'Ávila"), "'D''Ávila'");
  EXPECT_EQ(sql_quote("x' or '1'='1"), "'x'' or ''1''=''1'");
  ScratchFolder folder;
  Database db = Workspace::open_database("CADA.MDB");
  db.execute("Insert into CADA (CODIGO, A1) values ('0001', " + sql_quote("Sant'Ana") + ")");
  db.execute("Insert into CADA (CODIGO, A1) values ('0002', " + sql_quote("x' or '1'='1") + ")");
  Recordset rs = db.open_recordset("SELECT* FROM CADA where A1 = " + sql_quote("Sant'Ana"));
  ASSERT_FALSE(rs.eof());
  EXPECT_EQ(rs["CODIGO"].text(), "0001");
  rs.move_next();
  EXPECT_TRUE(rs.eof());
}

}  // namespace
}  // namespace mz::store
