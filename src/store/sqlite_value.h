#pragma once
// Values in and out of SQLite, read as the column's declared type.
#include <sqlite3.h>

#include <optional>

#include "core/value.h"
#include "store/catalogue.h"

namespace mz::store {

void bind_value(sqlite3_stmt* stmt, int index, const Value& v);
// A column of the current row; `type` is the column's declared type, or
// nullopt for an expression.
Value read_value(sqlite3_stmt* stmt, int column, std::optional<ColumnType> type);
std::optional<ColumnType> declared_type(sqlite3_stmt* stmt, int column);

// A value as a column of that type stores it, read with the regional rules.
// strict: a text the type cannot read is Error 3421; otherwise it passes as it is.
Value to_column_type(const Value& v, ColumnType type, bool strict);

}  // namespace mz::store
