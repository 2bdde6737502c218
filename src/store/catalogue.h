#pragma once
// Every database file of the system, its tables, their columns with the types
// as used, and the rows delivered with the program. The data folder is set up
// from this list, and the translator reads column types from the files it made.
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mz::store {

enum class ColumnType { Text, Number, Currency, Date, Integer };

struct ColumnDef {
  std::string name;
  ColumnType type;
};
using Columns = std::vector<ColumnDef>;

// Helpers that keep the catalogue short.
Columns text(std::initializer_list<const char*> names);
Columns number(std::initializer_list<const char*> names);
Columns currency(std::initializer_list<const char*> names);
Columns date(std::initializer_list<const char*> names);
Columns integer(std::initializer_list<const char*> names);
// prefix + first .. prefix + last, e.g. slots("X", 1, 50, ColumnType::Number).
Columns slots(const char* prefix, int first, int last, ColumnType type);
Columns operator+(Columns a, const Columns& b);

// A delivered row: column name and the value as regional text.
using Row = std::vector<std::pair<std::string, std::string>>;

struct TableDef {
  std::string name;
  Columns columns;
  // Each entry is one index: a column, or several separated by commas.
  std::vector<std::string> indexes;
  std::vector<Row> rows;
};

struct FileDef {
  std::string name;      // one spelling of the old file name, e.g. "Cada.Mdb"
  std::string password;  // "" for an open file
  std::vector<TableDef> tables;
};

const std::vector<FileDef>& catalogue();
// Case-insensitive, with or without a folder in front; nullptr when unknown.
const FileDef* find_file(std::string_view name);
// The file name in the data folder: "Cada.Mdb" -> "cada.db".
std::string storage_name(std::string_view old_name);

}  // namespace mz::store
