// Several files written as one unit: all of it or none, each statement in its
// own file.
#include "store/unit.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "core/format.h"
#include "store/connection.h"
#include "store/dialect.h"
#include "store/sql_text.h"
#include "support/errors.h"
#include "support/scratch_folder.h"

namespace mz::store {
namespace {

using testing::error_number;

std::string single(const char* file, const std::string& sql) {
  Recordset rs = Workspace::open_database(file).open_recordset(sql);
  return rs.eof() ? "(none)" : rs[0].text();
}

void add_cash(Database& db, const std::string& code, const std::string& amount) {
  Recordset rs = db.open_recordset("SELECT* FROM Cada where codigo = " + sql_quote(code));
  rs.add_new();
  rs["codigo"] = code;
  rs["A5"] = amount;
  rs.update();
}

TEST(StoreUnit, TablesOfTheSameNameStayInTheirOwnFiles) {
  testing::ScratchFolder folder;
  {
    Unit unit({"Contas.Mdb", "Caixa.Mdb", "CADA.MDB"});
    Database contas = unit.database("\\Contas.Mdb");
    Database caixa = unit.database("caixa.mdb");
    Database customers = unit.database("Cada.Mdb");
    contas.execute("Insert into Cada (CODIGO, D1, D5) values ('000001', 'Receber', '12,50')");
    add_cash(caixa, "0000001", "7,25");
    customers.execute("Insert into CADA (CODIGO, A1) values ('0001', 'Sant''Ana')");
    EXPECT_EQ(contas.open_recordset("Select max(codigo) from Cada")[0].text(), "000001");
    EXPECT_EQ(caixa.open_recordset("Select max(codigo) from Cada")[0].text(), "0000001");
    Recordset edited = caixa.open_recordset("SELECT* FROM CADA where codigo = '0000001'");
    edited.edit();
    edited["A6"] = "troco";
    edited.update();
    unit.commit();
  }
  EXPECT_EQ(single("Contas.Mdb", "Select count(*) from Cada"), "1");
  EXPECT_EQ(single("Contas.Mdb", "Select D5 from Cada"), "12,5");
  EXPECT_EQ(single("Caixa.Mdb", "Select count(*) from Cada"), "1");
  EXPECT_EQ(single("Caixa.Mdb", "Select A6 from Cada where A5 = 7.25"), "troco");
  EXPECT_EQ(single("CADA.MDB", "Select A1 from Cada"), "Sant'Ana");
}

TEST(StoreUnit, NothingStaysUnlessCommitted) {
  testing::ScratchFolder folder;
  try {
    Unit unit({"VENDA.MDB", "Caixa.Mdb"});
    Database caixa = unit.database("Caixa.Mdb");
    unit.database("VENDA.MDB").execute("Insert into VENDA (CODIGO, QTDA) values ('00000001', 1)");
    add_cash(caixa, "0000001", "1,00");
    add_cash(caixa, "0000002", "não é valor");  // fails half-way through the unit
    unit.commit();
  } catch (const Error& e) {
    EXPECT_EQ(e.number(), dberr::kConversion);
  }
  EXPECT_EQ(single("VENDA.MDB", "Select count(*) from VENDA"), "0");
  EXPECT_EQ(single("Caixa.Mdb", "Select count(*) from Cada"), "0");
}

// A file's own connection, with a read still open on it, neither holds up
// the unit nor misses what it committed.
TEST(StoreUnit, TheFilesOwnHandlesSeeTheCommittedRows) {
  testing::ScratchFolder folder;
  Database caixa = Workspace::open_database("Caixa.Mdb");
  for (int i = 1; i <= 100; ++i) add_cash(caixa, format(Value(i), "0000000"), "1,00");
  Recordset walk = caixa.open_recordset("SELECT* FROM Cada ORDER BY codigo");
  EXPECT_EQ(walk["codigo"].text(), "0000001");
  {
    Unit unit({"Caixa.Mdb", "VENDA.MDB"});
    Database in_unit = unit.database("Caixa.Mdb");
    add_cash(in_unit, "0000101", "2,00");
    unit.commit();
  }
  EXPECT_EQ(caixa.open_recordset("Select count(*) from Cada")[0].text(), "101");
  walk.move_last();
  EXPECT_EQ(walk.record_count(), 100);  // the walk keeps the rows it began with
}

// Other stations are given up on quickly here, and the usual wait comes back after.
struct ShortLockWait {
  ShortLockWait() { Connection::set_lock_timeout_ms(50); }
  ~ShortLockWait() { Connection::set_lock_timeout_ms(2000); }
};

TEST(StoreUnit, AFileHeldByAnotherStationIsError3186AndWritesNothing) {
  ShortLockWait short_wait;
  testing::ScratchFolder folder;
  Database held = Workspace::open_database("Caixa.Mdb");
  {
    Database::Transaction other_station(held);
    add_cash(held, "0000001", "1,00");
    EXPECT_EQ(error_number([] { Unit unit({"VENDA.MDB", "Caixa.Mdb"}); }), dberr::kLocked);
    other_station.commit();
  }
  EXPECT_EQ(error_number([] {
              Unit unit({"VENDA.MDB", "Caixa.Mdb"});
              unit.database("VENDA.MDB").execute("Insert into VENDA (CODIGO) values ('00000001')");
              unit.commit();
            }),
            0);
  EXPECT_EQ(single("VENDA.MDB", "Select count(*) from VENDA"), "1");

  // A station still reading a file when the unit commits: the commit fails
  // and the unit's writes go with it.
  sqlite3* reader = nullptr;
  ASSERT_EQ(sqlite3_open(folder.file("caixa.db").c_str(), &reader), SQLITE_OK);
  sqlite3_exec(reader, "BEGIN; SELECT count(*) FROM Cada;", nullptr, nullptr, nullptr);
  EXPECT_EQ(error_number([] {
              Unit unit({"VENDA.MDB", "Caixa.Mdb"});
              unit.database("VENDA.MDB").execute("Insert into VENDA (CODIGO) values ('00000002')");
              Database caixa = unit.database("Caixa.Mdb");
              add_cash(caixa, "0000002", "2,00");
              unit.commit();
            }),
            dberr::kLocked);
  sqlite3_exec(reader, "COMMIT", nullptr, nullptr, nullptr);
  sqlite3_close(reader);
  EXPECT_EQ(single("VENDA.MDB", "Select count(*) from VENDA"), "1");
  EXPECT_EQ(single("Caixa.Mdb", "Select count(*) from Cada"), "1");
}

TEST(StoreUnit, MisuseIsAnError) {
  testing::ScratchFolder folder;
  const std::vector<std::string_view> eleven = {"A1.mdb",  "A2.mdb",  "C3.Mdb",    "C6.Mdb",     "C7.Mdb", "C8.Mdb",
                                                "CADA.MDB", "Caixa.Mdb", "Contas.Mdb", "DEPE.MDB", "DP.Mdb"};
  EXPECT_EQ(error_number([&] { Unit unit(eleven); }), dberr::kGeneric);
  EXPECT_EQ(error_number([] { Unit unit({"VENDA.MDB", "NADA.MDB"}); }), dberr::kFileNotFound);
  EXPECT_EQ(error_number([] {
              Unit unit({"VENDA.MDB"});
              unit.database("Caixa.Mdb");
            }),
            dberr::kItemNotFound);
  EXPECT_EQ(error_number([] {
              Unit unit({"VENDA.MDB", "VENDA.MDB", "\\venda.mdb"});
              unit.commit();
              unit.commit();
            }),
            dberr::kGeneric);
}

// Inside a unit a statement names its own file's tables; columns, aliases
// and functions keep their names.
TEST(StoreUnit, StatementsNameTheTablesOfTheirSchema) {
  struct Case {
    const char* statement;
    const char* sql;
  } cases[] = {
      {"Select max(codigo) from Cada", "Select max ( codigo ) from \"f2\".Cada"},
      {"select A1 from A1 order by A1", "select rowid AS mz_rowid , A1 from \"f2\".A1 order by A1"},
      {"Insert into Cada (CODIGO, D1) values ('1', 'x')", "Insert into \"f2\".Cada ( CODIGO , D1 ) values ( ? , ? )"},
      {"UPDATE cada SET BX = 'F' where CODIGO = '1'", "UPDATE \"f2\".cada SET BX = ? where CODIGO = ?"},
      {"DELETE FROM TMP12;", "DELETE FROM \"f2\".TMP12"},
      {"Select * From grupo Where (grupo.E1 = 'A')", "Select rowid AS mz_rowid , * From \"f2\".grupo Where ( grupo . E1 = ? )"},
      {"select count(*) from ENTRA, [SAI] where X1 = 1", "select count ( * ) from \"f2\".ENTRA , \"f2\".[SAI] where X1 = ?"},
  };
  for (const auto& c : cases) {
    Translation t = translate_in_schema(c.statement, "f2");
    EXPECT_EQ(t.sql, c.sql) << c.statement;
  }
}

}  // namespace
}  // namespace mz::store
