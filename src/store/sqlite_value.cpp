#include "store/sqlite_value.h"

#include <cmath>
#include <string>

#include "core/error.h"
#include "core/regional.h"
#include "store/connection.h"

namespace mz::store {
namespace {

void bind_number(sqlite3_stmt* stmt, int index, double d) {
  if (std::fabs(d) < 9e15 && d == std::trunc(d)) sqlite3_bind_int64(stmt, index, static_cast<sqlite3_int64>(d));
  else sqlite3_bind_double(stmt, index, d);
}

[[noreturn]] void conversion_error(const Value& v) {
  throw Error(dberr::kConversion, "Erro de conversão de tipo de dados: '" + v.text() + "'.");
}

}  // namespace

void bind_value(sqlite3_stmt* stmt, int index, const Value& v) {
  switch (v.kind()) {
    case Value::Kind::Empty:
    case Value::Kind::Null:
      sqlite3_bind_null(stmt, index);
      break;
    case Value::Kind::Text:
      sqlite3_bind_text(stmt, index, v.raw_text().data(), static_cast<int>(v.raw_text().size()), SQLITE_TRANSIENT);
      break;
    case Value::Kind::Number:
      bind_number(stmt, index, v.raw_number());
      break;
    case Value::Kind::Currency:
      bind_number(stmt, index, v.raw_currency().to_double());
      break;
    case Value::Kind::Date:
      bind_number(stmt, index, v.raw_date().serial);
      break;
    case Value::Kind::Boolean:
      sqlite3_bind_int(stmt, index, v.raw_bool() ? -1 : 0);
      break;
  }
}

std::optional<ColumnType> declared_type(sqlite3_stmt* stmt, int column) {
  const char* decl = sqlite3_column_decltype(stmt, column);
  if (!decl) return std::nullopt;
  switch (decl[0]) {
    case 'N': case 'n': return ColumnType::Number;
    case 'C': case 'c': return ColumnType::Currency;
    case 'D': case 'd': return ColumnType::Date;
    case 'I': case 'i': return ColumnType::Integer;
    default: return ColumnType::Text;
  }
}

Value read_value(sqlite3_stmt* stmt, int column, std::optional<ColumnType> type) {
  int storage = sqlite3_column_type(stmt, column);
  if (storage == SQLITE_NULL) return Value::null();
  if (storage == SQLITE_TEXT || storage == SQLITE_BLOB || (type && *type == ColumnType::Text)) {
    auto p = reinterpret_cast<const char*>(sqlite3_column_text(stmt, column));
    return Value(std::string(p, static_cast<size_t>(sqlite3_column_bytes(stmt, column))));
  }
  double d = sqlite3_column_double(stmt, column);
  if (type == ColumnType::Currency) return Value(Currency::from_double(d));
  if (type == ColumnType::Date) return Value(Date{d});
  return Value(d);
}

Value to_column_type(const Value& v, ColumnType type, bool strict) {
  if (v.is_null()) return v;
  if (type == ColumnType::Text) return v.is_empty() ? Value("") : Value(v.text());
  if (v.is_empty()) return Value::null();
  if (v.is_text()) {
    switch (type) {
      case ColumnType::Number:
      case ColumnType::Integer:
        if (auto d = parse_number(v.raw_text())) return Value(type == ColumnType::Integer ? std::nearbyint(*d) : *d);
        break;
      case ColumnType::Currency:
        if (auto c = parse_money(v.raw_text())) return Value(*c);
        break;
      case ColumnType::Date:
        if (auto d = parse_date(v.raw_text())) return Value(*d);
        break;
      case ColumnType::Text:
        break;
    }
    if (strict) conversion_error(v);
    return v;
  }
  switch (type) {
    case ColumnType::Currency: return Value(v.to_currency());
    case ColumnType::Date: return v.kind() == Value::Kind::Date ? v : Value(Date{v.to_number()});
    case ColumnType::Integer: return Value(std::nearbyint(v.to_number()));
    default: return Value(v.to_number());
  }
}

}  // namespace mz::store
