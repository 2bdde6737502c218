#include "store/data_folder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>
#include <iterator>

#include "core/error.h"
#include "store/catalogue.h"
#include "store/database.h"
#include "store/names.h"
#include "store/shipped_reports.h"
#include "support/scratch_folder.h"

namespace mz::store {
namespace {

using testing::ScratchFolder;
using testing::TempFolder;

std::vector<std::string> rows_of(const char* file, const std::string& sql) {
  std::vector<std::string> out;
  Database db = Workspace::open_trusted(file);
  for (Recordset rs = db.open_recordset(sql); !rs.eof(); rs.move_next()) {
    std::string line;
    for (size_t i = 0; i < rs.field_count(); ++i) line += (i ? "\t" : "") + rs[i].text();
    out.push_back(line);
  }
  return out;
}

TEST(StoreDataFolder, NewShopGetsEveryFileAndTheDeliveredRows) {
  TempFolder folder;
  EXPECT_TRUE(is_new_shop(folder.path()));
  SetupReport report = setup_data_folder(folder.path());
  EXPECT_EQ(report.files_created.size(), catalogue().size());
  EXPECT_FALSE(is_new_shop(folder.path()));
  for (const FileDef& def : catalogue()) EXPECT_TRUE(std::filesystem::exists(folder.path() / storage_name(def.name))) << def.name;
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "tmp.db")) << "the compaction scratch file is not a data file";

  Workspace::set_folder(folder.path());
  struct Case {
    const char* file;
    const char* sql;
    size_t rows;
  };
  for (const auto& c : std::vector<Case>{{"GRADE.Mdb", "SELECT* FROM GRADE", 1},
                                         {"EMPE.Mdb", "SELECT* FROM EMPE", 1},
                                         {"MARGEM.Mdb", "SELECT* FROM MARGEM", 1},
                                         {"CADA.MDB", "SELECT* FROM CADA", 0},
                                         {"VENDA.MDB", "SELECT* FROM VENDA", 0}}) {
    SCOPED_TRACE(c.file);
    EXPECT_EQ(rows_of(c.file, c.sql).size(), c.rows);
  }
  EXPECT_EQ(rows_of("lay.Mdb", "Select lay From lay"), std::vector<std::string>{"1"});
  EXPECT_EQ(rows_of("CDSE.Mdb", "SELECT CODIGO, A2, A3, A4, A5, A6, A7, A19 FROM CDSEN"),
            std::vector<std::string>{"1\t\t\t\t\t\t\t"});
  EXPECT_EQ(rows_of("C3.Mdb", "Select A1 From A1 order by A1"),
            (std::vector<std::string>{"CLIENTE", "FORNECEDOR", "REPRESENTANTE"}));
  for (const char* list : {"A1.mdb", "A2.mdb", "C6.Mdb"}) EXPECT_FALSE(rows_of(list, "select A1 from A1").empty()) << list;
}

TEST(StoreDataFolder, TemplatesAreCopiedOnceAndAShopsOwnCopyStays) {
  TempFolder folder;
  SetupReport first = setup_data_folder(folder.path());
  ASSERT_FALSE(shipped_reports().empty());
  EXPECT_EQ(first.templates_copied.size(), shipped_reports().size());
  for (const ShippedReport& r : shipped_reports()) EXPECT_TRUE(std::filesystem::exists(folder.path() / r.name)) << r.name;

  const std::string adjusted = "report form\ntable RECI\n";
  const std::string name = shipped_reports().front().name;
  std::filesystem::remove(folder.path() / name);
  std::ofstream(folder.path() / lower_name(name)) << adjusted;  // the shop's copy, in its own spelling
  std::filesystem::remove(folder.path() / shipped_reports().back().name);
  SetupReport second = setup_data_folder(folder.path());
  EXPECT_EQ(second.templates_copied, std::vector<std::string>{shipped_reports().back().name});
  std::ifstream in(folder.path() / lower_name(name));
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), adjusted);
}

TEST(StoreDataFolder, RunningAgainAddsWhatIsMissingAndChangesNothing) {
  ScratchFolder folder;
  Workspace::open_database("lay.Mdb").execute("update lay set lay = '2'");
  Workspace::open_database("CADA.MDB").execute("Insert into CADA (CODIGO, A1) values ('0001', 'MARIA')");
  Workspace::open_database("C3.Mdb").execute("delete from A1 where A1 = 'CLIENTE'");
  Workspace::close_all();
  std::filesystem::remove(folder.file("grade.db"));
  // A file that lost a column and its second table gets them back.
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(folder.file("refe.db").c_str(), &db), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(db, "DROP TABLE GRUPO; CREATE TABLE GRUPO (GR TEXT)", nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(db);

  SetupReport report = setup_data_folder(folder.path());
  EXPECT_EQ(report.files_created, std::vector<std::string>{"grade.db"});
  EXPECT_TRUE(report.tables_created == std::vector<std::string>{"GRADE.Mdb: GRADE"});
  EXPECT_FALSE(report.columns_added.empty());
  EXPECT_EQ(rows_of("lay.Mdb", "Select lay From lay"), std::vector<std::string>{"2"});
  EXPECT_EQ(rows_of("CADA.MDB", "SELECT A1 FROM CADA"), std::vector<std::string>{"MARIA"});
  EXPECT_EQ(rows_of("C3.Mdb", "Select A1 From A1 order by A1"), (std::vector<std::string>{"FORNECEDOR", "REPRESENTANTE"}));
  EXPECT_EQ(rows_of("REFE.MDB", "SELECT E2, A50 FROM GRUPO").size(), 0u);
  EXPECT_EQ(setup_data_folder(folder.path()).columns_added.size(), 0u);
}

TEST(StoreDataFolder, TheProgramSetsUpOnlyANewShop) {
  TempFolder empty;
  EXPECT_TRUE(prepare_shop_folder(empty.path()));
  EXPECT_TRUE(std::filesystem::exists(empty.path() / "grade.db"));
  TempFolder one_file_left;
  { std::ofstream(one_file_left.path() / "cada.db") << ""; }
  EXPECT_FALSE(prepare_shop_folder(one_file_left.path()));
  EXPECT_FALSE(std::filesystem::exists(one_file_left.path() / "grade.db"));
}

// A shop made by an earlier version keeps its rows and gains the columns and
// indexes that are new; a missing file stays missing and a damaged one stays
// as it was.
TEST(StoreDataFolder, StartUpUpgradesAnExistingShopInPlace) {
  TempFolder shop;
  {
    sqlite3* db = nullptr;
    sqlite3_open((shop.path() / "sala.db").c_str(), &db);
    sqlite3_exec(db, "CREATE TABLE SALA (X1 TEXT, X2 TEXT); INSERT INTO SALA VALUES ('0001', 'CARLA')", nullptr, nullptr,
                 nullptr);
    sqlite3_close(db);
  }
  { std::ofstream(shop.path() / "lay.db") << "isto não é um banco de dados"; }
  EXPECT_FALSE(prepare_shop_folder(shop.path()));
  EXPECT_FALSE(std::filesystem::exists(shop.path() / "grade.db"));
  std::ifstream damaged(shop.path() / "lay.db");
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(damaged), {}), "isto não é um banco de dados");
  sqlite3* db = nullptr;
  sqlite3_open((shop.path() / "sala.db").c_str(), &db);
  auto one = [db](const char* sql) {
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(db, sql, -1, &st, nullptr);
    std::string out = sqlite3_step(st) == SQLITE_ROW ? reinterpret_cast<const char*>(sqlite3_column_text(st, 0)) : "";
    sqlite3_finalize(st);
    return out;
  };
  EXPECT_EQ(one("SELECT X2 || '|' || ifnull(X22, 'null') FROM SALA"), "CARLA|null");
  EXPECT_EQ(one("SELECT count(*) FROM sqlite_master WHERE type = 'index' AND tbl_name = 'SALA'"), "2");
  sqlite3_close(db);
}

TEST(StoreDataFolder, DamagedFileIsReportedNotReplaced) {
  ScratchFolder folder;
  Workspace::close_all();
  { std::ofstream(folder.file("lay.db"), std::ios::trunc) << "isto não é um banco de dados, é um texto qualquer"; }
  EXPECT_FALSE(is_new_shop(folder.path()));
  try {
    rows_of("lay.Mdb", "Select * From lay");
    ADD_FAILURE() << "no error";
  } catch (const Error& e) {
    EXPECT_EQ(e.number(), 3343);
  }
}

}  // namespace
}  // namespace mz::store
