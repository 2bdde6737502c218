#pragma once
// A plain SQLite connection on one file, for the maintenance tasks that work
// below the store: copying, checking and compacting whole files.
#include <sqlite3.h>

#include <filesystem>
#include <string>
#include <vector>

namespace mz::maintenance {

class SqliteFile {
 public:
  // Opens with the program's collation and functions, which the indexes need.
  SqliteFile(const std::filesystem::path& file, int flags);
  ~SqliteFile();
  SqliteFile(const SqliteFile&) = delete;
  SqliteFile& operator=(const SqliteFile&) = delete;

  sqlite3* get() const { return db_; }
  void run(const std::string& sql);
  // The first column of every row of a query, as text.
  std::vector<std::string> column(const std::string& sql);
  // Whether SQLite's integrity check finds the file whole; a file it cannot
  // read at all is not.
  bool intact();
  // "TABLE=count" for every table, to be sure a copy holds every row.
  std::vector<std::string> row_counts();
  // Throws the engine's error, naming the file: 3186 when it is locked.
  [[noreturn]] void fail() const;

 private:
  std::filesystem::path file_;
  sqlite3* db_ = nullptr;
};

}  // namespace mz::maintenance
