#include "store/dialect.h"

#include <gtest/gtest.h>

#include "core/error.h"

namespace mz::store {
namespace {

struct Case {
  const char* statement;
  const char* sql;
  std::vector<std::string> params;  // each as text
};

TEST(StoreDialect, TranslatesTheDialectsForms) {
  const std::vector<Case> cases = {
      {"SELECT* FROM GRADE ORDER BY A1", "SELECT rowid AS mz_rowid , * FROM GRADE ORDER BY A1", {}},
      {"select sum(X1)from ENTRA where REFERENCIA = '0007'", "select sum ( X1 ) from ENTRA where REFERENCIA = ?",
       {"0007"}},
      {"SELECT* FROM GRUPO where GR=  \"0001\"", "SELECT rowid AS mz_rowid , * FROM GRUPO where GR = ?", {"0001"}},
      {"Insert into Dt (Dt) values (\"22/11/2026\");", "Insert into Dt ( Dt ) values ( ? )", {"22/11/2026"}},
      {"Select * From cada where A1 LIKE '*MARIA*'", "Select rowid AS mz_rowid , * From cada where A1 LIKE ?",
       {"*MARIA*"}},
      {"SELECT SUM(QTDA),V1 FROM VENDA WHERE DATA BETWEEN #11/01/2026# AND #11/30/2026# GROUP BY V1",
       "SELECT SUM ( QTDA ) , V1 FROM VENDA WHERE DATA BETWEEN ? AND ? GROUP BY V1",
       {"01/11/2026", "30/11/2026"}},
      {"DELETE FROM TMP12;", "DELETE FROM TMP12", {}},
      {"delete * from A1 where A1 = 'D''ÁVILA'", "delete from A1 where A1 = ?", {"D'ÁVILA"}},
      {"Select E2 From GRUPO GROUP BY E2 ORDER BY E2", "Select E2 From GRUPO GROUP BY E2 ORDER BY E2", {}},
      {"SELECT A1 & '-' & A2 FROM EMPE ORDER BY 1", "SELECT rowid AS mz_rowid , A1 || ? || A2 FROM EMPE ORDER BY 2",
       {"-"}},
      {"SELECT TOP 5 * FROM CADA", "SELECT rowid AS mz_rowid , * FROM CADA LIMIT 5", {}},
      {"Update GRADE set A1 = 'P', A2 = 12.5", "Update GRADE set A1 = ? , A2 = ?", {"P", "12,5"}},
      {"SELECT Left(A1, 3) FROM CADA", "SELECT rowid AS mz_rowid , mz_Left ( A1 , ? ) FROM CADA", {"3"}},
      {"SELECT * FROM CADA, SALA", "SELECT * FROM CADA , SALA", {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.statement);
    Translation t = translate(c.statement);
    EXPECT_EQ(t.sql, c.sql);
    ASSERT_EQ(t.params.size(), c.params.size());
    for (size_t i = 0; i < c.params.size(); ++i) EXPECT_EQ(t.params[i].value.text(), c.params[i]);
  }
}

TEST(StoreDialect, StatementsDifferingOnlyInValuesShareOneText) {
  EXPECT_EQ(translate("select sum(X1)from ENTRA where REFERENCIA = '0001'").sql,
            translate("select sum(X1)from ENTRA where REFERENCIA = \"0999\"").sql);
  EXPECT_EQ(translate("SELECT* FROM VENDA WHERE DATA BETWEEN #01/01/2020# AND #12/31/2020#").sql,
            translate("SELECT* FROM VENDA WHERE DATA BETWEEN #02/03/2026# AND #02/28/2026#").sql);
}

TEST(StoreDialect, KnowsWhereEachLiteralGoes) {
  struct Target {
    const char* statement;
    std::vector<std::string> columns;
    std::vector<bool> written;
    const char* table;
    bool updatable;
  };
  const std::vector<Target> cases = {
      {"Insert into CADA (CODIGO, A1) values ('0001', 'MARIA')", {"CODIGO", "A1"}, {true, true}, "CADA", false},
      {"Insert into X (A, B) values ('1' & 'x', 5)", {"", "", "B"}, {true, true, true}, "X", false},
      {"update Cada set BX = 'F' where CODIGO = '000001'", {"BX", "CODIGO"}, {true, false}, "Cada", false},
      {"SELECT* FROM Cada where D3 BETWEEN #1/1/2026# AND #1/31/2026#", {"D3", "D3"}, {false, false}, "Cada", true},
      {"Select * From grupo Where (grupo.E1 Like 'CAM*')", {"", "", "E1"}, {false, false, false}, "grupo", true},
      {"Select max(GR) from GRUPO", {}, {}, "GRUPO", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.statement);
    Translation t = translate(c.statement);
    ASSERT_EQ(t.params.size(), c.columns.size());
    for (size_t i = 0; i < c.columns.size(); ++i) {
      EXPECT_EQ(t.params[i].column, c.columns[i]) << i;
      EXPECT_EQ(t.params[i].written, c.written[i]) << i;
    }
    EXPECT_EQ(t.table, c.table);
    EXPECT_EQ(t.updatable, c.updatable);
  }
}

TEST(StoreDialect, BadLiteralsAreSyntaxErrors) {
  for (const char* bad : {"SELECT* FROM VENDA WHERE DATA BETWEEN ## AND ##", "SELECT* FROM VENDA WHERE DATA = #13/45/2026#",
                          "SELECT* FROM CADA WHERE A1 = 'open", "SELECT* FROM VENDA WHERE DATA = #11/22/2026"}) {
    SCOPED_TRACE(bad);
    try {
      translate(bad);
      ADD_FAILURE() << "no error";
    } catch (const Error& e) {
      EXPECT_EQ(e.number(), 3075);
    }
  }
}

}  // namespace
}  // namespace mz::store
