#pragma once
// The operations the handlers speak: a workspace opens a database file of the
// data folder, a database runs statements and opens recordsets, a recordset
// walks its rows and writes them back.
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"

namespace mz::store {

class Connection;
class Recordset;
class Unit;

// A handle on one database file. Cheap: the file's connection stays open.
class Database {
 public:
  Database() = default;
  bool is_open() const { return conn_ != nullptr; }
  // Runs a statement that returns no rows.
  void execute(std::string_view sql);
  // An updatable cursor on the first row of a select (or at EOF).
  Recordset open_recordset(std::string_view sql);
  void close() { conn_.reset(); }
  const std::string& name() const { return name_; }
  // Statements prepared on this file so far; each distinct shape once.
  size_t prepared_statements() const;

  // Holds the file for one station from begin to commit, so that a key read
  // and the row written with it cannot interleave with another station.
  class Transaction {
   public:
    explicit Transaction(Database& db);
    ~Transaction();  // rolls back unless committed
    void commit();   // a second commit throws

   private:
    std::shared_ptr<Connection> conn_;
    bool done_ = false;
  };

 private:
  friend class Workspace;
  friend class Unit;
  Database(std::shared_ptr<Connection> conn, std::string name, std::string schema = {})
      : conn_(std::move(conn)), name_(std::move(name)), schema_(std::move(schema)) {}
  Connection& connection() const;
  std::shared_ptr<Connection> conn_;
  std::string name_;
  std::string schema_;  // the file's name on a unit's connection; "" on its own
};

// The single default workspace (DBEngine.Workspaces(0)).
class Workspace {
 public:
  // The data folder the program works in (the program's own folder before).
  static void set_folder(const std::filesystem::path& folder);
  static const std::filesystem::path& folder();

  // path: a file name of the data folder in any spelling ("\Cada.Mdb"), or a
  // full path. connect: ";pwd=..." where the file has a password; a missing
  // or wrong one on a protected file is Error 3031, and a connection text on
  // any other file is ignored. A missing file is Error 3024.
  static Database open_database(std::string_view path, std::string_view connect = "");
  // Opens with the connection text the file needs, as the program's own
  // handlers do (the command line and screen scripts).
  static Database open_trusted(std::string_view path);
  // Closes every connection (before files are copied, repaired or removed).
  static void close_all();
  // One connection on the files (the first opened, the others attached as
  // "f1", "f2", ...), kept for the next unit on the same files. This
  // process's own open reads of them are finished first, so that they
  // cannot hold up the unit's commit.
  static std::shared_ptr<Connection> unit_connection(const std::vector<std::filesystem::path>& files);
  // Where the file of an old name lies: "Cada.Mdb" -> <folder>/cada.db.
  static std::filesystem::path file_path(std::string_view path);
};

// AbreBase: opens with no connection text for an empty password, the
// password as it stands when it begins with ";", otherwise ";Pwd=" + it.
void abre_base(std::string_view path, Database& database, std::string_view password);

class Recordset {
 public:
  class Field {
   public:
    operator Value() const { return rs_->value(index_); }
    Value value() const { return rs_->value(index_); }
    std::string text() const { return value().text(); }
    Field& operator=(const Value& v) {
      rs_->assign(index_, v);
      return *this;
    }
    const std::string& name() const;

   private:
    friend class Recordset;
    Field(Recordset* rs, size_t index) : rs_(rs), index_(index) {}
    Recordset* rs_;
    size_t index_;
  };

  Recordset();
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;
  ~Recordset();

  bool eof() const;
  bool bof() const;
  void move_next();
  void move_previous();
  void move_first();
  void move_last();
  // Rows reached so far: the whole count after move_last or a walk to EOF.
  long record_count() const;
  // The current row's place, to come back to it after the rows changed.
  long bookmark() const;
  void set_bookmark(long bookmark);

  size_t field_count() const;
  // By name in any case spelling, or by position (0 is the first column).
  Field operator[](std::string_view name);
  Field operator[](size_t index);
  Field operator[](int index) { return (*this)[static_cast<size_t>(index)]; }
  Field fields(std::string_view name) { return (*this)[name]; }

  void add_new();
  void edit();
  void update();
  void cancel_update();
  void delete_current();
  void close();

 private:
  friend class Database;
  struct Impl;
  explicit Recordset(std::unique_ptr<Impl> impl);
  Impl& impl() const;  // Error 3420 once closed
  Value value(size_t index) const;
  void assign(size_t index, const Value& v);
  std::unique_ptr<Impl> impl_;
};

}  // namespace mz::store
