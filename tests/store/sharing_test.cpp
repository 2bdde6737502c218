// Two stations writing one data folder at the same time.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/error.h"
#include "store/database.h"
#include "store/keys.h"
#include "store/sql_functions.h"
#include "store/sql_text.h"
#include "support/scratch_folder.h"

namespace mz::store {
namespace {

constexpr int kRowsPerStation = 150;

// Retries a write that met the other station's lock, as a user repeats it.
template <typename Write>
void repeat_while_locked(Write write) {
  for (;;) {
    try {
      write();
      return;
    } catch (const Error& e) {
      if (e.number() != 3186) throw;
    }
  }
}

void station(const std::filesystem::path& folder, int number) {
  Workspace::set_folder(folder);
  for (int i = 0; i < kRowsPerStation; ++i) {
    repeat_while_locked([&] {
      Database cash = Workspace::open_database("Caixa.Mdb");
      Database::Transaction transaction(cash);
      std::string key = next_key(cash, keys::kCash);
      Recordset rs = cash.open_recordset("SELECT* FROM Cada where codigo = " + sql_quote(key));
      rs.add_new();
      rs["codigo"] = key;
      rs["A2"] = "Crédito";
      rs["A5"] = "1,10";
      rs["A6"] = "estação " + std::to_string(number);
      rs.update();
      transaction.commit();
    });
    repeat_while_locked([&] {
      Workspace::open_database("ENTRA.MDB")
          .execute("Insert into ENTRA (CODIGO, REFERENCIA, X1, QTDA) values (" + sql_quote(std::to_string(number)) +
                   ", '0001', 1, 1)");
    });
  }
}

std::string single(const char* file, const char* sql) {
  Recordset rs = Workspace::open_database(file).open_recordset(sql);
  return rs[0].text();
}

TEST(StoreSharing, TwoStationsLoseNothingAndNeverRepeatAKey) {
  testing::ScratchFolder folder;
  Workspace::close_all();  // no connection may cross a fork
  std::vector<pid_t> children;
  for (int number = 1; number <= 2; ++number) {
    pid_t pid = fork();
    ASSERT_GE(pid, 0);
    if (pid == 0) {
      int status = 0;
      try {
        station(folder.path(), number);
      } catch (const std::exception& e) {
        fprintf(stderr, "estação %d: %s\n", number, e.what());
        status = 1;
      }
      _exit(status);  // no test-runner clean-up in the child
    }
    children.push_back(pid);
  }
  for (pid_t pid : children) {
    int status = 0;
    waitpid(pid, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  }
  Workspace::set_folder(folder.path());
  const std::string total = std::to_string(2 * kRowsPerStation);
  EXPECT_EQ(single("Caixa.Mdb", "Select count(*) from Cada"), total);
  EXPECT_EQ(single("Caixa.Mdb", "Select count(*) from (select distinct codigo from Cada)"), total);
  EXPECT_EQ(single("Caixa.Mdb", "Select max(codigo) from Cada"), "0000" + total);
  EXPECT_EQ(single("Caixa.Mdb", "Select sum(A5) from Cada"), "330");
  EXPECT_EQ(single("ENTRA.MDB", "select sum(X1)from ENTRA where REFERENCIA = '0001'"), total);
  for (const char* file : {"caixa.db", "entra.db"}) {
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(folder.file(file).c_str(), &db), SQLITE_OK);
    register_sql_functions(db);  // the indexes use the shop's collation
    sqlite3_stmt* stmt = nullptr;
    sqlite3_prepare_v2(db, "PRAGMA integrity_check", -1, &stmt, nullptr);
    ASSERT_EQ(sqlite3_step(stmt), SQLITE_ROW);
    EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)), "ok") << file;
    sqlite3_finalize(stmt);
    sqlite3_close(db);
  }
}

// Another station's repair or restore renames a new file over ours: what we
// write afterwards must land in the file now on disk, not in the unlinked one.
TEST(StoreSharing, AFileRenamedOverIsReopenedForThisStationsWrites) {
  testing::ScratchFolder folder;
  Workspace::open_database("Caixa.Mdb").execute("Insert into Cada (codigo, A6) values ('0000001', 'antes')");
  Database held = Workspace::open_database("Caixa.Mdb");  // a handle this station still holds
  const std::filesystem::path copy = folder.file("caixa.tmp");
  std::filesystem::copy_file(folder.file("caixa.db"), copy);
  std::filesystem::rename(copy, folder.file("caixa.db"));

  Workspace::open_database("Caixa.Mdb").execute("Insert into Cada (codigo, A6) values ('0000002', 'depois')");
  Workspace::close_all();
  EXPECT_EQ(single("Caixa.Mdb", "Select count(*) from Cada"), "2");
  EXPECT_EQ(single("Caixa.Mdb", "Select max(A6) from Cada"), "depois");
}

}  // namespace
}  // namespace mz::store
