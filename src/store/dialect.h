#pragma once
// The system's SQL dialect translated for SQLite. Every literal is lifted out
// into a bound parameter, so that statements differing only in their values
// share one prepared statement.
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"

namespace mz::store {

enum class StatementKind { Select, Insert, Update, Delete, Other };

struct Parameter {
  Value value;
  // The column the literal is compared with or written into, when the
  // statement says so directly; its type decides how the literal is read.
  std::string column;
  bool written = false;  // a value stored by INSERT ... VALUES or UPDATE ... SET
};

struct Translation {
  std::string sql;  // SQLite text, "?" for each parameter
  std::vector<Parameter> params;
  StatementKind kind = StatementKind::Other;
  std::string table;  // the table read, inserted into, updated or deleted from
  // A select over one table without grouping: the row id comes first as a
  // hidden column so that the cursor can write rows back.
  bool updatable = false;
  bool changes_schema = false;  // CREATE, ALTER, DROP
};

// Throws Error 3075 on an empty or malformed date literal and on an
// unterminated string.
Translation translate(std::string_view statement);
// The same inside a unit of several files: the tables the statement names
// are those of the attached file `schema`, whatever the other files hold.
Translation translate_in_schema(std::string_view statement, std::string_view schema);

// The hidden first column of an updatable select.
inline constexpr const char* kRowIdColumn = "mz_rowid";

}  // namespace mz::store
