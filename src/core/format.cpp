#include "core/format.h"

#include <optional>

#include "core/calendar.h"
#include "core/format_patterns.h"
#include "core/regional.h"

namespace mz {
namespace {

// What a number pattern works on; nullopt sends the value's text through
// unchanged, as the old runtime did with text that is not a number (and with
// dates, whose text is not a number either).
std::optional<DecimalNumber> number_of(const Value& value) {
  switch (value.kind()) {
    case Value::Kind::Empty: return DecimalNumber{};
    case Value::Kind::Text: return read_regional_number(value.raw_text());
    case Value::Kind::Number:
    case Value::Kind::Boolean: return decimal_from_double(value.raw_number());
    case Value::Kind::Currency: return decimal_from_currency(value.raw_currency());
    case Value::Kind::Null:
    case Value::Kind::Date: return std::nullopt;
  }
  return std::nullopt;
}

// What a date pattern works on; Empty is day zero, numbers are day serials.
std::optional<Date> date_of(const Value& value) {
  switch (value.kind()) {
    case Value::Kind::Empty: return Date{};
    case Value::Kind::Text: return parse_date(value.raw_text());
    case Value::Kind::Date: return value.raw_date();
    case Value::Kind::Number:
    case Value::Kind::Boolean:
    case Value::Kind::Currency: {
      double serial = value.to_number();
      if (calendar::in_range(serial)) return Date{serial};
      return std::nullopt;
    }
    case Value::Kind::Null: return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace

std::string format(const Value& value, std::string_view pattern) {
  if (value.is_null() || pattern.empty()) return value.text();
  if (is_date_pattern(pattern)) {
    auto date = date_of(value);
    return date ? format_date(*date, pattern) : value.text();
  }
  auto number = number_of(value);
  return number ? format_number(*number, pattern) : value.text();
}

}  // namespace mz
