#include "core/value.h"

#include <cmath>
#include <limits>
#include <utility>

#include "core/calendar.h"
#include "core/decimal.h"
#include "core/error.h"
#include "core/regional.h"

namespace mz {
namespace {

[[noreturn]] void overflow() { throw Error(err::kOverflow, "Overflow"); }
[[noreturn]] void type_mismatch() { throw Error(err::kTypeMismatch, "Type mismatch"); }
[[noreturn]] void invalid_use_of_null() { throw Error(err::kInvalidUseOfNull, "Invalid use of Null"); }

// n / d rounded half to even, within the currency range.
int64_t divide_half_even(__int128 n, __int128 d) {
  __int128 quotient = n / d;
  __int128 remainder = n % d;
  __int128 twice = 2 * (remainder < 0 ? -remainder : remainder);
  __int128 divisor = d < 0 ? -d : d;
  if (twice > divisor || (twice == divisor && quotient % 2 != 0)) quotient += (n < 0) != (d < 0) ? -1 : 1;
  if (quotient > std::numeric_limits<int64_t>::max() || quotient < std::numeric_limits<int64_t>::min()) overflow();
  return static_cast<int64_t>(quotient);
}

bool equals_ignoring_ascii_case(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    char x = a[i] >= 'a' && a[i] <= 'z' ? static_cast<char>(a[i] - 32) : a[i];
    char y = b[i] >= 'a' && b[i] <= 'z' ? static_cast<char>(b[i] - 32) : b[i];
    if (x != y) return false;
  }
  return true;
}

Date checked_date(double serial) {
  if (!calendar::in_range(serial)) overflow();
  return Date{serial};
}

}  // namespace

Currency Currency::from_double(double value) {
  if (!std::isfinite(value)) overflow();
  auto units = to_currency_units(decimal_from_double(value));
  if (!units) overflow();
  return Currency{*units};
}

Currency Currency::operator*(Currency o) const {
  return Currency{divide_half_even(static_cast<__int128>(units) * o.units, kScale)};
}

Currency Currency::operator/(Currency o) const {
  if (o.units == 0) throw Error(err::kDivisionByZero, "Division by zero");
  return Currency{divide_half_even(static_cast<__int128>(units) * kScale, o.units)};
}

Value::Value(std::string text) : kind_(Kind::Text), text_(std::move(text)) {}
Value::Value(std::string_view text) : kind_(Kind::Text), text_(text) {}
Value::Value(const char* text) : kind_(Kind::Text), text_(text) {}
Value::Value(double number) : kind_(Kind::Number), number_(number) {}
Value::Value(int number) : kind_(Kind::Number), number_(number) {}
Value::Value(int64_t number) : kind_(Kind::Number), number_(static_cast<double>(number)) {}
Value::Value(Currency money) : kind_(Kind::Currency), money_(money) {}
Value::Value(Date date) : kind_(Kind::Date), number_(date.serial) {}

Value Value::null() {
  Value v;
  v.kind_ = Kind::Null;
  return v;
}

Value Value::boolean(bool b) {
  Value v;
  v.kind_ = Kind::Boolean;
  v.number_ = b ? -1 : 0;  // True is -1 in the old runtime's arithmetic
  return v;
}

std::string Value::text() const {
  switch (kind_) {
    case Kind::Empty:
    case Kind::Null: return "";
    case Kind::Text: return text_;
    case Kind::Number: return number_text(number_);
    case Kind::Currency: return currency_text(money_);
    case Kind::Date: return date_text(raw_date());
    case Kind::Boolean: return raw_bool() ? "True" : "False";
  }
  return "";
}

double Value::to_number() const {
  switch (kind_) {
    case Kind::Empty: return 0;
    case Kind::Null: invalid_use_of_null();
    case Kind::Text:
      if (auto number = parse_number(text_)) return *number;
      type_mismatch();
    case Kind::Currency: return money_.to_double();
    case Kind::Number:
    case Kind::Date:
    case Kind::Boolean: return number_;
  }
  return 0;
}

Currency Value::to_currency() const {
  switch (kind_) {
    case Kind::Empty: return Currency{};
    case Kind::Null: invalid_use_of_null();
    case Kind::Text:
      if (auto money = parse_money(text_)) return *money;
      type_mismatch();
    case Kind::Currency: return money_;
    case Kind::Number:
    case Kind::Date:
    case Kind::Boolean: return Currency::from_double(number_);
  }
  return Currency{};
}

Date Value::to_date() const {
  switch (kind_) {
    case Kind::Empty: return Date{};
    case Kind::Null: invalid_use_of_null();
    case Kind::Text:
      if (auto date = parse_date(text_)) return *date;
      type_mismatch();
    case Kind::Currency: return checked_date(money_.to_double());
    case Kind::Number:
    case Kind::Date:
    case Kind::Boolean: return checked_date(number_);
  }
  return Date{};
}

bool Value::to_bool() const {
  switch (kind_) {
    case Kind::Empty: return false;
    case Kind::Null: invalid_use_of_null();
    case Kind::Text:
      if (equals_ignoring_ascii_case(text_, "True")) return true;
      if (equals_ignoring_ascii_case(text_, "False")) return false;
      if (auto number = parse_number(text_)) return *number != 0;
      type_mismatch();
    case Kind::Currency: return money_.units != 0;
    case Kind::Number:
    case Kind::Date:
    case Kind::Boolean: return number_ != 0;
  }
  return false;
}

bool Value::operator==(const Value& other) const {
  if (kind_ != other.kind_) return false;
  switch (kind_) {
    case Kind::Empty:
    case Kind::Null: return true;
    case Kind::Text: return text_ == other.text_;
    case Kind::Currency: return money_ == other.money_;
    case Kind::Number:
    case Kind::Date:
    case Kind::Boolean: return number_ == other.number_;
  }
  return false;
}

bool is_numeric(const Value& v) {
  switch (v.kind()) {
    case Value::Kind::Empty:
    case Value::Kind::Number:
    case Value::Kind::Currency:
    case Value::Kind::Boolean: return true;
    case Value::Kind::Text: return read_regional_number(v.raw_text()).has_value();
    case Value::Kind::Null:
    case Value::Kind::Date: return false;
  }
  return false;
}

bool is_date(const Value& v) {
  if (v.kind() == Value::Kind::Date) return true;
  return v.is_text() && parse_date(v.raw_text()).has_value();
}

}  // namespace mz
