#include "store/database.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "core/error.h"
#include "store/connection.h"
#include "store/sql_text.h"
#include "support/scratch_folder.h"
#include "support/errors.h"

namespace mz::store {
namespace {

using testing::error_number;

using testing::ScratchFolder;

std::vector<std::string> column_of(Database& db, const std::string& sql, size_t column = 0) {
  std::vector<std::string> out;
  for (Recordset rs = db.open_recordset(sql); !rs.eof(); rs.move_next()) out.push_back(rs[column].text());
  return out;
}

TEST(StoreDatabase, OpensFilesInAnySpellingAndChecksThePassword) {
  ScratchFolder folder;
  struct Case {
    std::string path;
    const char* connect;
    int error;
  };
  const std::vector<Case> cases = {
      {"\\Cada.Mdb", "", 0},
      {"CADA.MDB", ";Pwd=VAULTX", 0},  // a password on an open file is ignored
      {"cADA.Mdb", ";pwd=vaultx", 0},
      {folder.path().string() + "/sai.mdb", "", 0},
      {folder.path().string() + "\\SAI.MDB", "", 0},
      {"CDSE.Mdb", ";pwd=604215", 0},
      {"cdse.mdb", ";PWD=604215", 0},
      {"CDSE.Mdb", "", 3031},
      {"CDSE.Mdb", ";pwd=604216", 3031},
      {"NAOEXISTE.MDB", "", 3024},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.path + " " + c.connect);
    EXPECT_EQ(error_number([&] { Workspace::open_database(c.path, c.connect); }), c.error);
  }
}

TEST(StoreDatabase, AbreBaseComposesTheConnectionText) {
  ScratchFolder folder;
  Database db;
  abre_base("\\VENDA.MDB", db, "");
  EXPECT_TRUE(db.is_open());
  EXPECT_EQ(error_number([&] { abre_base("\\CDSE.Mdb", db, "604215"); }), 0);
  EXPECT_EQ(error_number([&] { abre_base("\\CDSE.Mdb", db, ";pwd=604215"); }), 0);
  EXPECT_EQ(error_number([&] { abre_base("\\CDSE.Mdb", db, ""); }), 3031);
}

TEST(StoreDatabase, AddNewEditDeleteAndWalk) {
  ScratchFolder folder;
  Database db = Workspace::open_database("Cada.Mdb");
  Recordset rs = db.open_recordset("SELECT* FROM CADA where CODIGO = '0001'");
  EXPECT_TRUE(rs.eof());
  EXPECT_TRUE(rs.bof());
  for (const char* code : {"0001", "0002", "0003"}) {
    rs.add_new();
    rs["codigo"] = code;  // any case spelling
    rs["A1"] = std::string("CLIENTE ") + code;
    rs.update();
  }
  EXPECT_TRUE(rs.eof()) << "the position stays where it was before AddNew";

  rs = db.open_recordset("Select * From cada order by A1");
  ASSERT_FALSE(rs.eof());
  EXPECT_EQ(rs.record_count(), 1);
  rs.edit();
  rs["A1"] = "ALTERADO";
  EXPECT_EQ(rs["a1"].text(), "ALTERADO") << "the edited value reads back before Update";
  rs.update();
  rs.move_next();
  rs.delete_current();
  EXPECT_EQ(error_number([&] { rs["A1"].text(); }), 3167);
  rs.move_next();
  EXPECT_EQ(rs["CODIGO"].text(), "0003");
  rs.move_previous();
  EXPECT_EQ(rs["CODIGO"].text(), "0001") << "the deleted row is passed over";
  rs.move_previous();
  EXPECT_TRUE(rs.bof());
  rs.move_last();
  EXPECT_EQ(rs.record_count(), 2);
  long last = rs.bookmark();
  rs.move_first();
  rs.set_bookmark(last);
  EXPECT_EQ(rs["CODIGO"].text(), "0003");
  EXPECT_EQ(error_number([&] { rs.set_bookmark(1); }), 3021) << "a deleted row cannot be returned to";

  EXPECT_EQ(column_of(db, "SELECT* FROM CADA ORDER BY CODIGO", 0), (std::vector<std::string>{"0001", "0003"}));
  EXPECT_EQ(column_of(db, "SELECT A1 FROM CADA ORDER BY CODIGO"), (std::vector<std::string>{"ALTERADO", "CLIENTE 0003"}));
}

TEST(StoreDatabase, MisuseGivesTheEnginesErrors) {
  ScratchFolder folder;
  Database db = Workspace::open_database("Cada.Mdb");
  Recordset empty = db.open_recordset("SELECT* FROM CADA");
  Recordset aggregate = db.open_recordset("Select max(codigo) from Cada");
  struct Case {
    const char* what;
    std::function<void()> action;
    int error;
  };
  const std::vector<Case> cases = {
      {"move past the end", [&] { empty.move_next(); }, 3021},
      {"read at EOF", [&] { empty["A1"].text(); }, 3021},
      {"edit at EOF", [&] { empty.edit(); }, 3021},
      {"assign without AddNew", [&] { empty["A1"] = "X"; }, 3020},
      {"unknown field", [&] { empty["NAOEXISTE"].text(); }, 3265},
      {"write an aggregate", [&] { aggregate.add_new(); }, 3027},
      {"unknown table", [&] { db.open_recordset("SELECT* FROM NADA"); }, 3078},
      {"unknown column", [&] { db.execute("update CADA set NADA = 'x'"); }, 3061},
      {"empty date literal", [&] { db.open_recordset("SELECT* FROM CADA where D3 = ##"); }, 3075},
      {"text into a number column", [&] { Workspace::open_database("ENTRA.MDB").execute("Insert into ENTRA (X1) values ('abc')"); }, 3421},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(error_number(c.action), c.error);
  }
  db.close();
  EXPECT_EQ(error_number([&] { db.execute("DELETE FROM CADA"); }), 3420);
}

TEST(StoreDatabase, AggregateOnEmptyTableIsNullNotEof) {
  ScratchFolder folder;
  Database db = Workspace::open_database("REFE.MDB");
  Recordset rs = db.open_recordset("Select max(GR) from GRUPO");
  ASSERT_FALSE(rs.eof());
  EXPECT_TRUE(rs[0].value().is_null());
}

TEST(StoreDatabase, ValuesReadAsTheirColumnsType) {
  ScratchFolder folder;
  Database db = Workspace::open_database("ENTRA.MDB");
  Recordset rs = db.open_recordset("SELECT* FROM ENTRA");
  rs.add_new();
  rs["CODIGO"] = "00000001";
  rs["DATA"] = "22/11/2026";
  rs["REFERENCIA"] = "0007";
  rs["X1"] = "3";
  rs["QTDA"] = 3;
  rs["VALOR"] = "1.234,56";
  rs["TOTAL"] = "3.703,68";
  rs.update();
  db.execute("Insert into ENTRA (CODIGO, DATA, REFERENCIA, X1, QTDA, VALOR) values ('00000002', #11/23/2026#, '0007', '1,5', 2, '0,10')");

  rs = db.open_recordset("SELECT* FROM ENTRA where DATA BETWEEN #11/22/2026# AND #11/22/2026# ");
  ASSERT_FALSE(rs.eof());
  EXPECT_EQ(rs["DATA"].value().kind(), Value::Kind::Date);
  EXPECT_EQ(rs["DATA"].text(), "22/11/2026");
  EXPECT_EQ(rs["VALOR"].value().kind(), Value::Kind::Currency);
  EXPECT_EQ(rs["VALOR"].value().raw_currency().units, 12345600);
  EXPECT_EQ(rs["X1"].value().to_number(), 3);
  EXPECT_EQ(rs["TOTAL"].text(), "3.703,68") << "money text stays text";
  EXPECT_EQ(rs["X2"].value().is_null(), true);

  EXPECT_EQ(column_of(db, "select sum(X1)from ENTRA where REFERENCIA = '0007'"), (std::vector<std::string>{"4,5"}));
  EXPECT_EQ(column_of(db, "select sum(VALOR)from ENTRA where REFERENCIA = '7'"), (std::vector<std::string>{""}));
  EXPECT_EQ(column_of(db, "SELECT CODIGO FROM ENTRA WHERE DATA = '23/11/2026'"), (std::vector<std::string>{"00000002"}));
}

TEST(StoreDatabase, TextComparesWithoutCaseAndSortsAccentsBesideTheirLetter) {
  ScratchFolder folder;
  Database db = Workspace::open_database("CADA.MDB");
  const char* names[] = {"Bruno", "álvaro", "Zélia", "ANA", "D'Ávila", "Sant'Ana", "alvaro"};
  int code = 1;
  for (const char* name : names)
    db.execute("Insert into CADA (CODIGO, A1) values (" + sql_quote("000" + std::to_string(code++)) + ", " +
               sql_quote(name) + ")");
  EXPECT_EQ(column_of(db, "Select * From cada order by A1", 1),
            (std::vector<std::string>{"alvaro", "álvaro", "ANA", "Bruno", "D'Ávila", "Sant'Ana", "Zélia"}));
  EXPECT_EQ(column_of(db, "SELECT A1 FROM CADA where A1 = " + sql_quote("d'ávila")), (std::vector<std::string>{"D'Ávila"}));
  EXPECT_EQ(column_of(db, "SELECT A1 FROM CADA where A1 = 'ALVARO'"), (std::vector<std::string>{"alvaro"}));
  EXPECT_EQ(column_of(db, "Select * From cada where A1 LIKE '*" + std::string("ana") + "*' order by A1", 1),
            (std::vector<std::string>{"ANA", "Sant'Ana"}));
  EXPECT_EQ(column_of(db, "Select * From cada where A1 LIKE '**'").size(), 7u);
  EXPECT_EQ(column_of(db, "SELECT A1 FROM CADA GROUP BY A1").size(), 7u);
  EXPECT_EQ(column_of(db, "Select max(A1) from CADA"), (std::vector<std::string>{"Zélia"}));
}

TEST(StoreDatabase, SameTableNameInTwoFilesNeverMixes) {
  ScratchFolder folder;
  Database customers = Workspace::open_database("CADA.MDB");
  Database cash = Workspace::open_database("Caixa.Mdb");
  customers.execute("Insert into Cada (CODIGO, A1) values ('0001', 'MARIA')");
  cash.execute("Insert into Cada (codigo, A1, A2, A5) values ('0000001', #11/22/2026#, 'Crédito', '10,50')");
  EXPECT_EQ(column_of(customers, "SELECT CODIGO FROM Cada"), (std::vector<std::string>{"0001"}));
  EXPECT_EQ(column_of(cash, "SELECT codigo FROM Cada"), (std::vector<std::string>{"0000001"}));
  Database inflow = Workspace::open_database("ENTRA.MDB");
  Database outflow = Workspace::open_database("SAI.MDB");
  inflow.execute("Insert into ENTRA (CODIGO, REFERENCIA, X1) values ('00000001', '0001', 5)");
  EXPECT_EQ(column_of(outflow, "select sum(X1)from ENTRA where REFERENCIA = '0001'"), (std::vector<std::string>{""}));
}

TEST(StoreDatabase, StatementsDifferingInValuesShareAPreparedStatement) {
  ScratchFolder folder;
  Database db = Workspace::open_database("ENTRA.MDB");
  db.open_recordset("select sum(X1)from ENTRA where REFERENCIA = '0000'").close();
  size_t before = db.prepared_statements();
  for (int ref = 1; ref <= 100; ++ref) {
    std::string code = std::to_string(1000 + ref);
    db.open_recordset("select sum(X1)from ENTRA where REFERENCIA = " + sql_quote(code)).close();
    db.open_recordset("select sum(X1)from ENTRA where REFERENCIA = \"" + code + "\"").close();
  }
  EXPECT_EQ(db.prepared_statements(), before);
  // Two cursors on one shape at the same time need two statements.
  Recordset a = db.open_recordset("select sum(X1)from ENTRA where REFERENCIA = '1'");
  Recordset b = db.open_recordset("select sum(X1)from ENTRA where REFERENCIA = '2'");
  EXPECT_TRUE(a[0].value().is_null());
  EXPECT_TRUE(b[0].value().is_null());
}

TEST(StoreDatabase, LockedFileFailsWith3186AfterAShortWait) {
  ScratchFolder folder;
  Connection::set_lock_timeout_ms(150);
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(folder.file("cada.db").c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  Database db = Workspace::open_database("CADA.MDB");
  EXPECT_EQ(error_number([&] { db.execute("Insert into CADA (CODIGO) values ('0001')"); }), 3186);
  sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  EXPECT_EQ(error_number([&] { db.execute("Insert into CADA (CODIGO) values ('0001')"); }), 0);
  Connection::set_lock_timeout_ms(2000);
}

}  // namespace
}  // namespace mz::store
