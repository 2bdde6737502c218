#include "store/data_folder.h"

#include <sqlite3.h>

#include <fstream>
#include <set>

#include "core/error.h"
#include "store/names.h"
#include "store/catalogue.h"
#include "store/connection.h"
#include "store/shipped_reports.h"
#include "store/sql_functions.h"
#include "store/sqlite_value.h"

namespace mz::store {
namespace {

const char* declaration(ColumnType type) {
  switch (type) {
    case ColumnType::Text: return "TEXT COLLATE MZ";
    case ColumnType::Number: return "NUMBER";
    case ColumnType::Currency: return "CURRENCY";
    case ColumnType::Date: return "DATE";
    case ColumnType::Integer: return "INTEGER";
  }
  return "TEXT";
}

// A raw connection that may create the file; the set-up runs before any
// handler and needs none of the dialect.
class SetupFile {
 public:
  explicit SetupFile(const std::filesystem::path& path) : path_(path) {
    if (sqlite3_open_v2(path.c_str(), &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK)
      throw Error(dberr::kFileNotFound, "Não foi possível criar o arquivo '" + path.string() + "'.");
    register_sql_functions(db_);
  }
  ~SetupFile() { sqlite3_close(db_); }

  void exec(const std::string& sql) {
    char* message = nullptr;
    if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &message) != SQLITE_OK) {
      std::string text = message ? message : "erro";
      sqlite3_free(message);
      throw Error(dberr::kGeneric, path_.filename().string() + ": " + text);
    }
  }

  std::set<std::string> columns_of(const std::string& table) {
    std::set<std::string> names;
    sqlite3_stmt* stmt = nullptr;
    sqlite3_prepare_v2(db_, "SELECT name FROM pragma_table_info(?)", -1, &stmt, nullptr);
    sqlite3_bind_text(stmt, 1, table.c_str(), -1, SQLITE_TRANSIENT);
    while (sqlite3_step(stmt) == SQLITE_ROW)
      names.insert(lower_name(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0))));
    sqlite3_finalize(stmt);
    return names;
  }

  void insert(const TableDef& table, const Row& row) {
    std::string cols, marks;
    for (const auto& [column, value] : row) {
      cols += (cols.empty() ? "" : ",") + quoted_name(column);
      marks += marks.empty() ? "?" : ",?";
    }
    std::string sql = "INSERT INTO " + quoted_name(table.name) + " (" + cols + ") VALUES (" + marks + ")";
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK)
      throw Error(dberr::kGeneric, sqlite3_errmsg(db_));
    int index = 1;
    for (const auto& [column, value] : row) bind_value(stmt, index++, to_column_type(Value(value), type_of(table, column), true));
    int rc = sqlite3_step(stmt);
    sqlite3_finalize(stmt);
    if (rc != SQLITE_DONE) throw Error(dberr::kGeneric, sqlite3_errmsg(db_));
  }

 private:
  static ColumnType type_of(const TableDef& table, const std::string& column) {
    for (const auto& c : table.columns)
      if (same_name(c.name, column)) return c.type;
    throw Error(dberr::kItemNotFound, "Coluna '" + column + "' fora da tabela " + table.name + ".");
  }

  std::filesystem::path path_;
  sqlite3* db_ = nullptr;
};

std::string index_name(const TableDef& table, const std::string& columns) {
  std::string name = "ix_" + table.name + "_" + columns;
  for (auto& c : name)
    if (c == ',' || c == ' ') c = '_';
  return lower_name(name);
}

std::string index_columns(const std::string& columns) {
  std::string out, part;
  for (char c : columns + ",") {
    if (c == ',') {
      if (!part.empty()) out += (out.empty() ? "" : ",") + quoted_name(part);
      part.clear();
    } else if (c != ' ') {
      part += c;
    }
  }
  return out;
}

void set_up_table(SetupFile& file, const FileDef& def, const TableDef& table, SetupReport& report) {
  std::set<std::string> existing = file.columns_of(table.name);
  if (existing.empty()) {
    std::string cols;
    for (const auto& c : table.columns) cols += (cols.empty() ? "" : ", ") + quoted_name(c.name) + " " + declaration(c.type);
    file.exec("CREATE TABLE " + quoted_name(table.name) + " (" + cols + ")");
    for (const auto& row : table.rows) file.insert(table, row);
    report.tables_created.push_back(def.name + ": " + table.name);
  } else {
    for (const auto& c : table.columns) {
      if (existing.count(lower_name(c.name))) continue;
      file.exec("ALTER TABLE " + quoted_name(table.name) + " ADD COLUMN " + quoted_name(c.name) + " " + declaration(c.type));
      report.columns_added.push_back(def.name + ": " + table.name + "." + c.name);
    }
  }
  for (const auto& index : table.indexes)
    file.exec("CREATE INDEX IF NOT EXISTS " + quoted_name(index_name(table, index)) + " ON " + quoted_name(table.name) + " (" +
              index_columns(index) + ")");
}

// The shop's own copy of each report template, never overwritten: a shop may
// have adjusted it.
void copy_missing_templates(const std::filesystem::path& folder, SetupReport& report) {
  std::set<std::string> present;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    present.insert(lower_name(entry.path().filename().string()));
  for (const ShippedReport& shipped : shipped_reports()) {
    if (present.count(lower_name(shipped.name))) continue;
    std::ofstream out(folder / shipped.name, std::ios::binary);
    out << shipped.text;
    if (!out) throw Error(dberr::kFileNotFound, std::string("Não foi possível gravar o relatório ") + shipped.name + ".");
    report.templates_copied.push_back(shipped.name);
  }
}

}  // namespace

SetupReport setup_data_folder(const std::filesystem::path& folder) {
  SetupReport report;
  std::filesystem::create_directories(folder);
  for (const FileDef& def : catalogue()) {
    std::filesystem::path path = folder / storage_name(def.name);
    bool is_new = !std::filesystem::exists(path);
    SetupFile file(path);
    file.exec("BEGIN IMMEDIATE");
    for (const TableDef& table : def.tables) set_up_table(file, def, table, report);
    file.exec("COMMIT");
    if (is_new) report.files_created.push_back(storage_name(def.name));
  }
  copy_missing_templates(folder, report);
  return report;
}

bool is_new_shop(const std::filesystem::path& folder) {
  std::error_code ec;
  for (const auto& entry : std::filesystem::directory_iterator(folder, ec))
    if (entry.path().extension() == ".db") return false;
  return true;
}

SetupReport upgrade_shop_folder(const std::filesystem::path& folder) {
  SetupReport report;
  for (const FileDef& def : catalogue()) {
    std::filesystem::path path = folder / storage_name(def.name);
    if (!std::filesystem::is_regular_file(path)) continue;
    try {
      SetupFile file(path);
      file.exec("BEGIN IMMEDIATE");
      for (const TableDef& table : def.tables)
        if (!file.columns_of(table.name).empty()) set_up_table(file, def, table, report);
      file.exec("COMMIT");
    } catch (const Error&) {
      continue;  // a damaged or busy file is left as it is, for the screens to report
    }
  }
  return report;
}

bool prepare_shop_folder(const std::filesystem::path& folder) {
  if (!is_new_shop(folder)) {
    upgrade_shop_folder(folder);
    return false;
  }
  setup_data_folder(folder);
  return true;
}

}  // namespace mz::store
