#include "store/connection.h"

#include <atomic>

#include "core/error.h"
#include "store/names.h"
#include "store/sql_functions.h"

namespace mz::store {
namespace {

std::atomic<int> lock_timeout_ms{2000};

ColumnType type_from_declaration(std::string_view declared) {
  std::string d = lower_name(declared);
  if (d.rfind("number", 0) == 0) return ColumnType::Number;
  if (d.rfind("currency", 0) == 0) return ColumnType::Currency;
  if (d.rfind("date", 0) == 0) return ColumnType::Date;
  if (d.rfind("integer", 0) == 0) return ColumnType::Integer;
  return ColumnType::Text;
}

}  // namespace

StatementLease& StatementLease::operator=(StatementLease&& other) noexcept {
  if (this != &other) {
    release();
    owner_ = other.owner_;
    sql_ = std::move(other.sql_);
    stmt_ = other.stmt_;
    other.stmt_ = nullptr;
  }
  return *this;
}

void StatementLease::release() {
  if (stmt_ && owner_) owner_->give_back(sql_, stmt_);
  stmt_ = nullptr;
}

void file_not_found(const std::filesystem::path& file) {
  throw Error(dberr::kFileNotFound, "Não foi possível encontrar o arquivo '" + file.string() + "'.");
}

void item_not_found(std::string_view name) {
  throw Error(dberr::kItemNotFound, "Item não encontrado nesta coleção: '" + std::string(name) + "'.");
}

void Connection::set_lock_timeout_ms(int ms) { lock_timeout_ms = ms; }

Connection::Connection(const std::filesystem::path& file) : path_(file) {
  std::error_code ec;
  if (!std::filesystem::is_regular_file(file, ec)) file_not_found(file);
  int rc = sqlite3_open_v2(file.c_str(), &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  if (rc != SQLITE_OK) {
    sqlite3_close(db_);
    db_ = nullptr;
    throw Error(dberr::kFileNotFound, "Não foi possível abrir o arquivo '" + file.string() + "'.");
  }
  opened_.push_back(identify(file));
  sqlite3_busy_timeout(db_, lock_timeout_ms);
  register_sql_functions(db_);
}

Connection::~Connection() {
  for (auto* stmt : all_) sqlite3_finalize(stmt);
  sqlite3_close(db_);
}

StatementLease Connection::prepare(const std::string& sql) {
  auto it = free_.find(sql);
  if (it != free_.end() && !it->second.empty()) {
    sqlite3_stmt* stmt = it->second.back();
    it->second.pop_back();
    return StatementLease(this, sql, stmt);
  }
  sqlite3_stmt* stmt = nullptr;
  int rc = sqlite3_prepare_v3(db_, sql.c_str(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT, &stmt,
                              nullptr);
  if (rc != SQLITE_OK) fail(rc, sql);
  if (it == free_.end()) ++prepared_;
  free_[sql];  // the key exists from now on, so the count stays distinct
  all_.push_back(stmt);
  return StatementLease(this, sql, stmt);
}

void Connection::give_back(const std::string& sql, sqlite3_stmt* stmt) {
  sqlite3_reset(stmt);
  sqlite3_clear_bindings(stmt);
  free_[sql].push_back(stmt);
}

void Connection::attach(const std::filesystem::path& file, const std::string& schema) {
  std::error_code ec;
  if (!std::filesystem::is_regular_file(file, ec)) file_not_found(file);
  sqlite3_stmt* stmt = nullptr;
  check(sqlite3_prepare_v2(db_, "ATTACH DATABASE ? AS ?", -1, &stmt, nullptr));
  sqlite3_bind_text(stmt, 1, file.c_str(), -1, SQLITE_TRANSIENT);
  sqlite3_bind_text(stmt, 2, schema.c_str(), -1, SQLITE_TRANSIENT);
  int rc = sqlite3_step(stmt);
  sqlite3_finalize(stmt);
  check(rc);
  opened_.push_back(identify(file));
}

Connection::OpenedFile Connection::identify(const std::filesystem::path& file) {
  struct stat st {};
  if (::stat(file.c_str(), &st) != 0) return {file, 0, 0};
  return {file, st.st_dev, st.st_ino};
}

bool Connection::replaced_on_disk() const {
  for (const OpenedFile& f : opened_) {
    OpenedFile now = identify(f.path);
    if (now.device != f.device || now.inode != f.inode) return true;
  }
  return false;
}

std::optional<ColumnType> Connection::column_type(std::string_view table, std::string_view column,
                                                  std::string_view schema) {
  std::string t = lower_name(table);
  std::string in = schema.empty() ? std::string("main") : std::string(schema);
  auto it = schema_.find(in + "." + t);
  if (it == schema_.end()) {
    std::unordered_map<std::string, ColumnType> columns;
    // Prepared apart from the cache: it runs once per table and is no statement of the system.
    sqlite3_stmt* stmt = nullptr;
    check(sqlite3_prepare_v2(db_, "SELECT name, type FROM pragma_table_info(?, ?)", -1, &stmt, nullptr));
    sqlite3_bind_text(stmt, 1, t.c_str(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
    sqlite3_bind_text(stmt, 2, in.c_str(), static_cast<int>(in.size()), SQLITE_TRANSIENT);
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
      auto name = reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0));
      auto type = reinterpret_cast<const char*>(sqlite3_column_text(stmt, 1));
      columns[lower_name(name ? name : "")] = type_from_declaration(type ? type : "");
    }
    sqlite3_finalize(stmt);
    check(rc);
    it = schema_.emplace(in + "." + t, std::move(columns)).first;
  }
  auto col = it->second.find(lower_name(column));
  if (col == it->second.end()) return std::nullopt;
  return col->second;
}

void Connection::before_write() {
  // Copy: finishing a cursor may unregister it.
  std::vector<OpenCursor*> open(cursors_.begin(), cursors_.end());
  for (auto* c : open) c->finish_reading();
}

void Connection::fail(int rc, std::string_view statement) const {
  std::string detail = db_ ? sqlite3_errmsg(db_) : sqlite3_errstr(rc);
  int primary = rc & 0xFF;
  std::string file = path_.filename().string();
  if (primary == SQLITE_BUSY || primary == SQLITE_LOCKED)
    throw Error(dberr::kLocked, "Não foi possível gravar: '" + file + "' está bloqueado por outro usuário.");
  if (primary == SQLITE_NOTADB || primary == SQLITE_CORRUPT)
    throw Error(dberr::kUnrecognisedFormat, "Formato de banco de dados '" + file + "' não reconhecido.");
  if (primary == SQLITE_CONSTRAINT)
    throw Error(dberr::kDuplicate, "As alterações solicitadas não foram bem-sucedidas porque criariam valores duplicados.");
  if (detail.rfind("no such table", 0) == 0)
    throw Error(dberr::kNoSuchTable,
                "O mecanismo de banco de dados não encontrou a tabela '" + detail.substr(detail.find(':') + 2) + "'.");
  if (detail.rfind("no such column", 0) == 0)
    throw Error(dberr::kTooFewParameters,
                "Parâmetros insuficientes. Era esperado 1 (" + detail.substr(detail.find(':') + 2) + ").");
  if (primary == SQLITE_ERROR && detail.find("syntax error") != std::string::npos)
    throw Error(dberr::kSyntax, "Erro de sintaxe na expressão de consulta '" + std::string(statement) + "'.");
  throw Error(dberr::kGeneric, detail);
}

}  // namespace mz::store
