#include "store/database.h"

#include <algorithm>
#include <map>
#include <mutex>

#include "core/error.h"
#include "store/names.h"
#include "store/catalogue.h"
#include "store/connection.h"
#include "store/dialect.h"
#include "store/sqlite_value.h"

namespace mz::store {
namespace {

std::filesystem::path& data_folder() {
  static std::filesystem::path folder = std::filesystem::current_path();
  return folder;
}

std::mutex registry_mutex;
std::map<std::string, std::shared_ptr<Connection>>& registry() {
  static std::map<std::string, std::shared_ptr<Connection>> connections;
  return connections;
}

// ";pwd=604215" -> "604215"; the key may be written in any case.
std::string password_of(std::string_view connect) {
  std::string lower = lower_name(connect);
  size_t at = lower.find("pwd=");
  if (at == std::string::npos) return {};
  size_t start = at + 4;
  size_t end = connect.find(';', start);
  return std::string(connect.substr(start, end == std::string_view::npos ? std::string_view::npos : end - start));
}

void step_to_end(Connection& conn, sqlite3_stmt* stmt, std::string_view sql) {
  int rc;
  while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
  }
  conn.check(rc, sql);
}

// Binds a translation's literals, each read as the type of the column it
// is compared with or written into.
void bind_params(Connection& conn, sqlite3_stmt* stmt, const Translation& t, const std::string& schema) {
  for (size_t i = 0; i < t.params.size(); ++i) {
    const Parameter& p = t.params[i];
    Value v = p.value;
    if (!p.column.empty() && !t.table.empty()) {
      if (auto type = conn.column_type(t.table, p.column, schema)) v = to_column_type(v, *type, p.written);
    }
    bind_value(stmt, static_cast<int>(i + 1), v);
  }
}

Translation translate_for(std::string_view sql, const std::string& schema) {
  return schema.empty() ? translate(sql) : translate_in_schema(sql, schema);
}

[[noreturn]] void no_current_record() { throw Error(dberr::kNoCurrentRecord, "Nenhum registro atual."); }

}  // namespace

// ---------------------------------------------------------------- Workspace

void Workspace::set_folder(const std::filesystem::path& folder) {
  close_all();
  data_folder() = folder;
}

const std::filesystem::path& Workspace::folder() { return data_folder(); }

std::filesystem::path Workspace::file_path(std::string_view path) {
  std::string p(path);
  std::replace(p.begin(), p.end(), '\\', '/');
  size_t slash = p.rfind('/');
  std::string name = slash == std::string::npos ? p : p.substr(slash + 1);
  std::string dir = slash == std::string::npos ? std::string() : p.substr(0, slash);
  std::filesystem::path base = data_folder();
  if (!dir.empty()) {
    std::filesystem::path d(dir);
    base = d.is_absolute() ? d : data_folder() / d;
  }
  return base / storage_name(name);
}

Database Workspace::open_database(std::string_view path, std::string_view connect) {
  if (const FileDef* def = find_file(path); def && !def->password.empty()) {
    if (password_of(connect) != def->password) throw Error(dberr::kBadPassword, "Senha inválida.");
  }
  std::filesystem::path file = file_path(path);
  std::string key = file.lexically_normal().string();
  std::lock_guard lock(registry_mutex);
  auto& slot = registry()[key];
  if (slot && slot->replaced_on_disk()) {
    if (!std::filesystem::exists(file)) {  // removed behind our back
      registry().erase(key);
      file_not_found(file);
    }
    slot.reset();  // renamed over by a repair or restore: open the new file
  }
  if (!slot) slot = std::make_shared<Connection>(file);
  return Database(slot, std::string(path));
}

Database Workspace::open_trusted(std::string_view path) {
  const FileDef* def = find_file(path);
  return open_database(path, def && !def->password.empty() ? ";pwd=" + def->password : "");
}

void Workspace::close_all() {
  std::lock_guard lock(registry_mutex);
  registry().clear();
}

std::shared_ptr<Connection> Workspace::unit_connection(const std::vector<std::filesystem::path>& files) {
  std::string key = "unit";
  for (const auto& f : files) key += "|" + f.lexically_normal().string();
  std::lock_guard lock(registry_mutex);
  for (const auto& f : files)
    if (auto it = registry().find(f.lexically_normal().string()); it != registry().end()) it->second->before_write();
  auto open = [&] {
    auto conn = std::make_shared<Connection>(files.front());
    for (size_t i = 1; i < files.size(); ++i) conn->attach(files[i], "f" + std::to_string(i));
    return conn;
  };
  auto& slot = registry()[key];
  if (slot && slot.use_count() == 1 && slot->replaced_on_disk()) slot.reset();
  if (!slot) slot = open();
  // A unit already running on these files keeps its connection; a nested one gets its own.
  else if (slot.use_count() > 1) return open();
  return slot;
}

void abre_base(std::string_view path, Database& database, std::string_view password) {
  std::string connect;
  if (!password.empty()) connect = password[0] == ';' ? std::string(password) : ";Pwd=" + std::string(password);
  database = Workspace::open_database(path, connect);
}

// ---------------------------------------------------------------- Database

Connection& Database::connection() const {
  if (!conn_) throw Error(dberr::kObjectClosed, "Objeto inválido ou não mais definido.");
  return *conn_;
}

size_t Database::prepared_statements() const { return connection().prepared_count(); }

void Database::execute(std::string_view sql) {
  Connection& conn = connection();
  Translation t = translate_for(sql, schema_);
  conn.before_write();
  StatementLease lease = conn.prepare(t.sql);
  bind_params(conn, lease.get(), t, schema_);
  step_to_end(conn, lease.get(), sql);
  if (t.changes_schema) conn.forget_schema();
}

Database::Transaction::Transaction(Database& db) : conn_(db.conn_) {
  Connection& conn = db.connection();
  conn.before_write();
  conn.check(sqlite3_exec(conn.handle(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr));
}

Database::Transaction::~Transaction() {
  if (!done_) sqlite3_exec(conn_->handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Database::Transaction::commit() {
  if (done_) throw Error(dberr::kGeneric, "A transação já foi concluída.");
  conn_->before_write();
  conn_->check(sqlite3_exec(conn_->handle(), "COMMIT", nullptr, nullptr, nullptr));
  done_ = true;
}

// ---------------------------------------------------------------- Recordset

struct Recordset::Impl : OpenCursor {
  struct Row {
    sqlite3_int64 rowid = 0;
    std::vector<Value> values;
    bool deleted = false;
  };
  enum class Mode { None, Editing, Adding };

  std::shared_ptr<Connection> conn;
  StatementLease lease;
  std::string table;  // as written back: quoted, with its unit's schema
  bool updatable = false;
  int first_column = 0;  // 1 when the hidden row id leads
  std::vector<std::string> names;         // as the select names them
  std::vector<std::string> origin_names;  // the table's own column names
  std::vector<std::optional<ColumnType>> types;
  std::vector<Row> rows;
  bool done = false;
  long pos = 0;  // -1 before the first row; rows.size() past the last
  long furthest = -1;
  Mode mode = Mode::None;
  std::vector<std::optional<Value>> buffer;

  ~Impl() override { stop_reading(); }

  void stop_reading() {
    if (lease) {
      lease.release();
      conn->remove_cursor(this);
    }
    done = true;
  }

  bool fetch_one() {
    if (done) return false;
    sqlite3_stmt* stmt = lease.get();
    int rc = sqlite3_step(stmt);
    if (rc == SQLITE_ROW) {
      Row row;
      if (first_column) row.rowid = sqlite3_column_int64(stmt, 0);
      row.values.reserve(names.size());
      for (size_t i = 0; i < names.size(); ++i)
        row.values.push_back(read_value(stmt, static_cast<int>(i) + first_column, types[i]));
      rows.push_back(std::move(row));
      return true;
    }
    stop_reading();
    conn->check(rc);
    return false;
  }

  void finish_reading() override {
    while (fetch_one()) {
    }
  }

  // True when row i exists, fetching up to it.
  bool have(long i) {
    if (i < 0) return false;
    while (static_cast<long>(rows.size()) <= i && fetch_one()) {
    }
    return i < static_cast<long>(rows.size());
  }

  void settle_forward() {
    while (have(pos) && rows[pos].deleted) ++pos;
    if (have(pos)) furthest = std::max(furthest, pos);
  }

  Row& current() {
    if (pos < 0 || !have(pos)) no_current_record();
    if (rows[pos].deleted) throw Error(dberr::kRecordDeleted, "Registro excluído.");
    return rows[pos];
  }

  size_t index_of(std::string_view name) const {
    for (size_t i = 0; i < names.size(); ++i)
      if (same_name(names[i], name)) return i;
    item_not_found(name);
  }

  void require_updatable() const {
    if (!updatable) throw Error(dberr::kReadOnly, "Não é possível atualizar. Banco de dados ou objeto é somente leitura.");
  }

  void write_back() {
    conn->before_write();
    std::vector<size_t> assigned;
    for (size_t i = 0; i < buffer.size(); ++i)
      if (buffer[i]) assigned.push_back(i);
    if (mode == Mode::Adding) insert_row(assigned);
    else if (!assigned.empty()) update_row(assigned);
    mode = Mode::None;
  }

  void insert_row(const std::vector<size_t>& assigned) {
    std::string sql = "INSERT INTO " + table;
    if (assigned.empty()) {
      sql += " DEFAULT VALUES";
    } else {
      std::string cols, marks;
      for (size_t i : assigned) {
        cols += (cols.empty() ? "" : ",") + quoted_name(origin_names[i]);
        marks += marks.empty() ? "?" : ",?";
      }
      sql += " (" + cols + ") VALUES (" + marks + ")";
    }
    StatementLease stmt = conn->prepare(sql);
    for (size_t k = 0; k < assigned.size(); ++k) bind_value(stmt.get(), static_cast<int>(k + 1), *buffer[assigned[k]]);
    step_to_end(*conn, stmt.get(), sql);
    Row row;
    row.rowid = sqlite3_last_insert_rowid(conn->handle());
    for (size_t i = 0; i < names.size(); ++i) row.values.push_back(buffer[i] ? *buffer[i] : Value::null());
    bool at_end = pos >= static_cast<long>(rows.size());
    rows.push_back(std::move(row));  // a new row joins the end, the position stays
    if (at_end) pos = static_cast<long>(rows.size());
  }

  void update_row(const std::vector<size_t>& assigned) {
    std::string sql = "UPDATE " + table + " SET ";
    for (size_t k = 0; k < assigned.size(); ++k)
      sql += (k ? "," : "") + quoted_name(origin_names[assigned[k]]) + "=?";
    sql += " WHERE rowid=?";
    StatementLease stmt = conn->prepare(sql);
    Row& row = current();
    for (size_t k = 0; k < assigned.size(); ++k) bind_value(stmt.get(), static_cast<int>(k + 1), *buffer[assigned[k]]);
    sqlite3_bind_int64(stmt.get(), static_cast<int>(assigned.size() + 1), row.rowid);
    step_to_end(*conn, stmt.get(), sql);
    for (size_t i : assigned) row.values[i] = *buffer[i];
  }
};

Recordset Database::open_recordset(std::string_view sql) {
  Connection& conn = connection();
  Translation t = translate_for(sql, schema_);
  auto impl = std::make_unique<Recordset::Impl>();
  impl->conn = conn_;
  impl->lease = conn.prepare(t.sql);
  sqlite3_stmt* stmt = impl->lease.get();
  bind_params(conn, stmt, t, schema_);
  impl->table = schema_.empty() ? quoted_name(t.table) : quoted_name(schema_) + "." + quoted_name(t.table);
  impl->updatable = t.updatable;
  impl->first_column = t.updatable ? 1 : 0;
  int count = sqlite3_column_count(stmt);
  for (int c = impl->first_column; c < count; ++c) {
    const char* name = sqlite3_column_name(stmt, c);
    const char* origin = sqlite3_column_origin_name(stmt, c);
    impl->names.emplace_back(name ? name : "");
    impl->origin_names.emplace_back(origin ? origin : (name ? name : ""));
    impl->types.push_back(declared_type(stmt, c));
  }
  conn.add_cursor(impl.get());
  // Small results are read at once, so the file is free again at once.
  constexpr long kFirstBatch = 64;
  impl->have(kFirstBatch - 1);
  impl->settle_forward();
  return Recordset(std::move(impl));
}

Recordset::Recordset() = default;
Recordset::Recordset(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

Recordset::Impl& Recordset::impl() const {
  if (!impl_) throw Error(dberr::kObjectClosed, "Objeto inválido ou não mais definido.");
  return *impl_;
}

bool Recordset::eof() const {
  auto& r = impl();
  return r.pos >= 0 && !r.have(r.pos);
}

bool Recordset::bof() const {
  auto& r = impl();
  return r.pos < 0 || (r.pos == 0 && !r.have(0));
}

void Recordset::move_next() {
  auto& r = impl();
  if (eof()) no_current_record();
  r.mode = Impl::Mode::None;
  ++r.pos;
  r.settle_forward();
}

void Recordset::move_previous() {
  auto& r = impl();
  if (r.pos < 0) no_current_record();
  r.mode = Impl::Mode::None;
  --r.pos;
  while (r.pos >= 0 && r.rows[r.pos].deleted) --r.pos;
}

void Recordset::move_first() {
  auto& r = impl();
  r.mode = Impl::Mode::None;
  r.pos = 0;
  r.settle_forward();
  if (!r.have(r.pos)) no_current_record();
}

void Recordset::move_last() {
  auto& r = impl();
  r.mode = Impl::Mode::None;
  r.finish_reading();
  long last = static_cast<long>(r.rows.size()) - 1;
  while (last >= 0 && r.rows[last].deleted) --last;
  if (last < 0) no_current_record();
  r.pos = last;
  r.furthest = std::max(r.furthest, last);
}

long Recordset::record_count() const {
  auto& r = impl();
  long count = 0;
  for (long i = 0; i <= r.furthest && i < static_cast<long>(r.rows.size()); ++i)
    if (!r.rows[i].deleted) ++count;
  return count;
}

long Recordset::bookmark() const {
  auto& r = impl();
  r.current();
  return r.pos;
}

void Recordset::set_bookmark(long bookmark) {
  auto& r = impl();
  if (!r.have(bookmark) || r.rows[bookmark].deleted) no_current_record();
  r.mode = Impl::Mode::None;
  r.pos = bookmark;
  r.furthest = std::max(r.furthest, bookmark);
}

size_t Recordset::field_count() const { return impl().names.size(); }

Recordset::Field Recordset::operator[](std::string_view name) { return Field(this, impl().index_of(name)); }

Recordset::Field Recordset::operator[](size_t index) {
  if (index >= field_count()) throw Error(dberr::kItemNotFound, "Item não encontrado nesta coleção.");
  return Field(this, index);
}

const std::string& Recordset::Field::name() const { return rs_->impl_->names[index_]; }

Value Recordset::value(size_t index) const {
  auto& r = impl();
  if (r.mode != Impl::Mode::None && r.buffer[index]) return *r.buffer[index];
  if (r.mode == Impl::Mode::Adding) return Value::null();
  return r.current().values[index];
}

void Recordset::assign(size_t index, const Value& v) {
  auto& r = impl();
  if (r.mode == Impl::Mode::None)
    throw Error(dberr::kUpdateWithoutEdit, "Atualizar ou CancelarAtualização sem AdicionarNovo ou Editar.");
  r.buffer[index] = r.types[index] ? to_column_type(v, *r.types[index], true) : v;
}

void Recordset::add_new() {
  auto& r = impl();
  r.require_updatable();
  r.mode = Impl::Mode::Adding;
  r.buffer.assign(r.names.size(), std::nullopt);
}

void Recordset::edit() {
  auto& r = impl();
  r.require_updatable();
  r.current();
  r.mode = Impl::Mode::Editing;
  r.buffer.assign(r.names.size(), std::nullopt);
}

void Recordset::update() {
  auto& r = impl();
  if (r.mode == Impl::Mode::None)
    throw Error(dberr::kUpdateWithoutEdit, "Atualizar ou CancelarAtualização sem AdicionarNovo ou Editar.");
  r.write_back();
}

void Recordset::cancel_update() { impl().mode = Impl::Mode::None; }

void Recordset::delete_current() {
  auto& r = impl();
  r.require_updatable();
  r.current();
  r.conn->before_write();  // may read further rows: take the row after it
  Impl::Row& row = r.current();
  std::string sql = "DELETE FROM " + r.table + " WHERE rowid=?";
  StatementLease stmt = r.conn->prepare(sql);
  sqlite3_bind_int64(stmt.get(), 1, row.rowid);
  step_to_end(*r.conn, stmt.get(), sql);
  row.deleted = true;
  r.mode = Impl::Mode::None;
}

void Recordset::close() { impl_.reset(); }

}  // namespace mz::store
