// Sums of money over a million rows come out exact to the cent.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "store/database.h"
#include "store/sql_functions.h"
#include "support/scratch_folder.h"

namespace mz::store {
namespace {

constexpr int kRows = 1000000;

// Cents of row i: spread over 0,00 .. 999,99 so that most are not exact in binary.
int64_t cents_of(int64_t i) { return (i * 7919) % 99991; }

void fill(const std::filesystem::path& file, const char* column) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(file.c_str(), &db), SQLITE_OK);
  register_sql_functions(db);
  std::string sql = std::string("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ") +
                    std::to_string(kRows) + ") INSERT INTO Cada (" + column + ") SELECT ((i * 7919) % 99991) / 100.0 FROM n";
  ASSERT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
  sqlite3_close(db);
}

TEST(StoreMoneySum, ExactToTheCentOverAMillionRows) {
  testing::ScratchFolder folder;
  int64_t expected_cents = 0;
  for (int64_t i = 1; i <= kRows; ++i) expected_cents += cents_of(i);
  struct Case {
    const char* file;
    const char* storage;
    const char* column;  // a number column and a currency column
  };
  for (const auto& c : std::vector<Case>{{"Caixa.Mdb", "caixa.db", "A5"}, {"Contas.Mdb", "contas.db", "D5"}}) {
    SCOPED_TRACE(c.file);
    fill(folder.file(c.storage), c.column);
    Recordset rs = Workspace::open_database(c.file).open_recordset(std::string("Select sum(") + c.column + ") from Cada");
    Value total = rs[0];
    EXPECT_EQ(Currency::from_double(total.to_number()).units, expected_cents * 100);
    std::string cents = std::to_string(expected_cents % 100 + 100).substr(1);
    if (cents.back() == '0') cents.pop_back();
    EXPECT_EQ(total.text(), std::to_string(expected_cents / 100) + (cents.empty() ? "" : "," + cents));
  }
}

}  // namespace
}  // namespace mz::store
