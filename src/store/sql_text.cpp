#include "store/sql_text.h"

#include "core/format.h"
#include "core/regional.h"
#include "core/text.h"

namespace mz::store {

std::string sql_quote(std::string_view value) {
  std::string out = "'";
  for (char c : value) {
    if (c == '\'') out += '\'';
    out += c;
  }
  return out + "'";
}

std::string data_sql(std::string_view text, Date today) {
  if (text.empty()) return format(Value(today), "mm/dd/yyyy");
  std::string shaped(text);
  if (len(text) == 8) shaped = format(Value(shaped), "00/00/0000");
  if (len(shaped) != 10) return {};
  return format(Value(shaped), "mm/dd/yyyy");
}

std::string data_tela(const Value& value) {
  std::string text = value.text();
  size_t n = len(text);
  if (n == 8) return format(Value(text), "00/00/0000");
  if (n == 10) return text;
  return {};
}

}  // namespace mz::store
