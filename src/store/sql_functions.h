#pragma once
// What a connection adds to SQLite so that the dialect means what it meant:
// the text collation, Like with its wild cards, exact money sums and the
// functions statements call.
#include <sqlite3.h>

namespace mz::store {

inline constexpr const char* kCollation = "MZ";

void register_sql_functions(sqlite3* db);

}  // namespace mz::store
