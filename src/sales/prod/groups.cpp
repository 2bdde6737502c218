#include "sales/prod/groups.h"

#include <algorithm>
#include <cstring>

#include "core/error.h"
#include "core/text.h"
#include "store/collation.h"

namespace mz::sales::prod {

namespace {

bool is_null(const Value& v) { return v.is_null() || v.is_empty(); }

double number_of(const Value& v) { return v.kind() == Value::Kind::Date ? v.raw_date().serial : v.to_number(); }

int compare(const Value& a, const Value& b) {
  if (is_null(a) || is_null(b)) return is_null(a) == is_null(b) ? 0 : (is_null(a) ? -1 : 1);
  if (a.is_text() && b.is_text()) return store::compare_text(a.raw_text(), b.raw_text());
  if (a.is_text() || b.is_text()) return store::compare_text(a.text(), b.text());
  const double x = number_of(a), y = number_of(b);
  return x < y ? -1 : (x > y ? 1 : 0);
}

}  // namespace

bool value_before(const Value& a, const Value& b) { return compare(a, b) < 0; }

bool group_before(const GroupKey& a, const GroupKey& b) {
  for (size_t i = 0; i < a.size() && i < b.size(); ++i)
    if (int c = compare(a[i], b[i])) return c < 0;
  return a.size() < b.size();
}

bool add_to_key(std::string& key, const Value& column) {
  bool ascii = true;
  if (is_null(column)) {
    key += '\x01';
  } else if (column.is_text()) {
    key += '\x02';
    const std::string& text = column.raw_text();
    ascii = std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    // The collation tells texts apart by their letters, case aside; on
    // plain ASCII it orders them as their upper-case bytes.
    if (ascii) {
      for (char c : text) key += static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c);
    } else {
      key += lcase(text);
    }
  } else {
    double number = number_of(column);
    if (number == 0) number = 0;  // -0 is 0
    char bytes[sizeof number];
    std::memcpy(bytes, &number, sizeof number);
    key += '\x03';
    key.append(bytes, sizeof bytes);
    ascii = false;  // its bytes do not sort as the number does
  }
  key += '\0';
  return ascii;
}

void Quantity::add(const Value& v) {
  if (is_null(v)) return;
  try {
    sum += v.to_number();
    any = true;
  } catch (const Error&) {
    // a quantity that is no number is passed over, as the sum passes it over
  }
}

}  // namespace mz::sales::prod
