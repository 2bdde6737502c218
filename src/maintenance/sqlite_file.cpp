#include "maintenance/sqlite_file.h"

#include "core/error.h"
#include "store/connection.h"
#include "store/sql_functions.h"

namespace mz::maintenance {

SqliteFile::SqliteFile(const std::filesystem::path& file, int flags) : file_(file) {
  if (sqlite3_open_v2(file.c_str(), &db_, flags, nullptr) != SQLITE_OK) fail();
  sqlite3_busy_timeout(db_, 5000);
  store::register_sql_functions(db_);
}

SqliteFile::~SqliteFile() { sqlite3_close_v2(db_); }

void SqliteFile::run(const std::string& sql) {
  if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) fail();
}

std::vector<std::string> SqliteFile::column(const std::string& sql) {
  sqlite3_stmt* stmt = nullptr;
  if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK) fail();
  std::vector<std::string> out;
  int rc;
  while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
    const unsigned char* text = sqlite3_column_text(stmt, 0);
    out.emplace_back(text ? reinterpret_cast<const char*>(text) : "");
  }
  sqlite3_finalize(stmt);
  if (rc != SQLITE_DONE) fail();
  return out;
}

bool SqliteFile::intact() {
  try {
    std::vector<std::string> result = column("PRAGMA integrity_check");
    return result.size() == 1 && result[0] == "ok";
  } catch (const Error&) {
    return false;
  }
}

std::vector<std::string> SqliteFile::row_counts() {
  std::vector<std::string> counts;
  for (const std::string& table : column("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"))
    for (const std::string& n : column("SELECT count(*) FROM \"" + table + "\"")) counts.push_back(table + "=" + n);
  return counts;
}

void SqliteFile::fail() const {
  int code = db_ ? sqlite3_errcode(db_) : SQLITE_NOMEM;
  int number = code == SQLITE_BUSY || code == SQLITE_LOCKED ? store::dberr::kLocked : store::dberr::kGeneric;
  throw Error(number, file_.filename().string() + ": " + (db_ ? sqlite3_errmsg(db_) : "sem memória"));
}

}  // namespace mz::maintenance
