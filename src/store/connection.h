#pragma once
// One SQLite connection per database file, kept open for the life of the
// process, with its prepared statements cached by translated text.
#include <sqlite3.h>

#include <sys/stat.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "core/value.h"
#include "store/catalogue.h"

namespace mz::store {

class Connection;

// A prepared statement borrowed from the cache; reset and given back when
// the lease ends.
class StatementLease {
 public:
  StatementLease() = default;
  StatementLease(Connection* owner, std::string sql, sqlite3_stmt* stmt)
      : owner_(owner), sql_(std::move(sql)), stmt_(stmt) {}
  StatementLease(StatementLease&& other) noexcept { *this = std::move(other); }
  StatementLease& operator=(StatementLease&& other) noexcept;
  ~StatementLease() { release(); }
  sqlite3_stmt* get() const { return stmt_; }
  explicit operator bool() const { return stmt_ != nullptr; }
  void release();

 private:
  Connection* owner_ = nullptr;
  std::string sql_;
  sqlite3_stmt* stmt_ = nullptr;
};

// Anything that holds a statement open and must let go before a write.
class OpenCursor {
 public:
  virtual ~OpenCursor() = default;
  virtual void finish_reading() = 0;
};

class Connection {
 public:
  // Opens (never creates) the file; throws Error 3024 when it is missing.
  explicit Connection(const std::filesystem::path& file);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  sqlite3* handle() const { return db_; }
  const std::filesystem::path& path() const { return path_; }

  StatementLease prepare(const std::string& sql);
  // Distinct statements prepared so far (the cache's size).
  size_t prepared_count() const { return prepared_; }

  // Another file on this connection, its tables reached as schema.table; a
  // missing file is Error 3024.
  void attach(const std::filesystem::path& file, const std::string& schema);

  // Whether a file of this connection is no longer the one it opened: a
  // repair or a restore on another station renames a new file over it, and
  // writes through this connection would go to the old, unlinked one.
  bool replaced_on_disk() const;

  // The declared type of a column, or nullopt when the table or column is
  // unknown; schema names an attached file ("" is the connection's own).
  std::optional<ColumnType> column_type(std::string_view table, std::string_view column,
                                        std::string_view schema = {});
  void forget_schema() { schema_.clear(); }

  // Writes on a connection wait until every cursor on it has read its rows,
  // so that a walk never sees its own changes half-way.
  void before_write();
  void add_cursor(OpenCursor* c) { cursors_.insert(c); }
  void remove_cursor(OpenCursor* c) { cursors_.erase(c); }

  // Throws the engine's error with the old numbering for an SQLite result code.
  [[noreturn]] void fail(int rc, std::string_view statement = {}) const;
  void check(int rc, std::string_view statement = {}) const {
    if (rc != SQLITE_OK && rc != SQLITE_ROW && rc != SQLITE_DONE) fail(rc, statement);
  }

  void give_back(const std::string& sql, sqlite3_stmt* stmt);

  // How long a write waits for another station before it fails with 3186.
  static void set_lock_timeout_ms(int ms);

 private:
  struct OpenedFile {
    std::filesystem::path path;
    dev_t device;
    ino_t inode;
  };
  static OpenedFile identify(const std::filesystem::path& file);

  std::filesystem::path path_;
  std::vector<OpenedFile> opened_;  // the file itself, then the attached ones
  sqlite3* db_ = nullptr;
  std::unordered_map<std::string, std::vector<sqlite3_stmt*>> free_;
  std::vector<sqlite3_stmt*> all_;
  size_t prepared_ = 0;
  std::unordered_map<std::string, std::unordered_map<std::string, ColumnType>> schema_;
  std::unordered_set<OpenCursor*> cursors_;
};

// Numbers of the old engine's errors that handlers and users meet.
namespace dberr {
inline constexpr int kNoCurrentRecord = 3021;
inline constexpr int kUpdateWithoutEdit = 3020;
inline constexpr int kDuplicate = 3022;
inline constexpr int kFileNotFound = 3024;
inline constexpr int kReadOnly = 3027;
inline constexpr int kBadPassword = 3031;
inline constexpr int kTooFewParameters = 3061;
inline constexpr int kSyntax = 3075;
inline constexpr int kNoSuchTable = 3078;
inline constexpr int kRecordDeleted = 3167;
inline constexpr int kLocked = 3186;
inline constexpr int kItemNotFound = 3265;
inline constexpr int kUnrecognisedFormat = 3343;
inline constexpr int kObjectClosed = 3420;
inline constexpr int kConversion = 3421;
inline constexpr int kGeneric = 3000;
}  // namespace dberr

// Error 3024: the file is not where it was looked for.
[[noreturn]] void file_not_found(const std::filesystem::path& file);
// Error 3265: no field, or no file of a unit, goes by that name.
[[noreturn]] void item_not_found(std::string_view name);

}  // namespace mz::store
