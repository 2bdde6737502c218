#pragma once
// File, table and column names are the same in any case spelling.
#include <string>
#include <string_view>

namespace mz::store {

inline char lower_char(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

inline std::string lower_name(std::string_view s) {
  std::string out(s);
  for (auto& c : out) c = lower_char(c);
  return out;
}

inline bool same_name(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (lower_char(a[i]) != lower_char(b[i])) return false;
  return true;
}

// A name as an SQLite identifier, whatever it holds.
inline std::string quoted_name(std::string_view name) {
  std::string out = "\"";
  for (char c : name) {
    if (c == '"') out += '"';
    out += c;
  }
  return out + "\"";
}

}  // namespace mz::store
