#pragma once
// The variant the handlers move data in, with the shop's regional rules:
// decimal comma, "." as thousands separator, dates as dd/mm/yyyy.
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mz {

// Money in fixed point with four decimals; sums and products stay exact.
struct Currency {
  int64_t units = 0;  // ten-thousandths of a real

  static constexpr int64_t kScale = 10000;
  // Rounds half away from zero to the fourth decimal; throws Error 6 past range.
  static Currency from_double(double value);
  static constexpr Currency from_units(int64_t u) { return Currency{u}; }
  double to_double() const { return static_cast<double>(units) / kScale; }

  Currency operator+(Currency o) const { return {units + o.units}; }
  Currency operator-(Currency o) const { return {units - o.units}; }
  Currency operator-() const { return {-units}; }
  // Products and quotients round to four decimals, half to even, as the
  // old runtime's currency arithmetic did.
  Currency operator*(Currency o) const;
  Currency operator/(Currency o) const;  // throws Error 11 on zero
  auto operator<=>(const Currency&) const = default;
};

// Date and time as a day count from 30/12/1899 with the time as the fraction,
// so that adding 30 to a date is adding 30 days.
struct Date {
  double serial = 0;

  static Date from_ymd(int year, int month, int day);  // caller passes a valid date
  static Date from_ymd_hms(int year, int month, int day, int hour, int minute, int second);
  int year() const;
  int month() const;
  int day() const;
  int hour() const;
  int minute() const;
  int second() const;
  int weekday() const;  // 1 = Sunday ... 7 = Saturday
  Date date_only() const;
  bool has_time() const;
  auto operator<=>(const Date&) const = default;
};

bool is_valid_ymd(int year, int month, int day);

class Value {
 public:
  enum class Kind { Empty, Null, Text, Number, Currency, Date, Boolean };

  Value() = default;  // Empty
  Value(std::string text);
  Value(std::string_view text);
  Value(const char* text);
  Value(double number);
  Value(int number);
  Value(int64_t number);
  Value(Currency money);
  Value(Date date);
  static Value null();
  static Value boolean(bool b);

  Kind kind() const { return kind_; }
  bool is_empty() const { return kind_ == Kind::Empty; }
  bool is_null() const { return kind_ == Kind::Null; }
  bool is_text() const { return kind_ == Kind::Text; }

  // The text the regional settings show: 1234.5 -> "1234,5", a currency with
  // at most four decimals and no trailing zeros, a date "22/11/2026" (with
  // " 14:05:00" when it has a time), True/False, Empty and Null -> "".
  std::string text() const;
  // Conversions as the old runtime's CDbl/CCur/CDate: text is read with the
  // regional rules; Empty is 0; Null raises Error 94; bad text Error 13.
  double to_number() const;
  Currency to_currency() const;
  Date to_date() const;
  bool to_bool() const;

  // The raw payload, for callers that switched on kind().
  const std::string& raw_text() const { return text_; }
  double raw_number() const { return number_; }
  Currency raw_currency() const { return money_; }
  Date raw_date() const { return Date{number_}; }
  bool raw_bool() const { return number_ != 0; }

  // Same kind and same payload (Empty == Empty, Null == Null).
  bool operator==(const Value& other) const;

 private:
  Kind kind_ = Kind::Empty;
  std::string text_;
  double number_ = 0;  // Number, Date serial, Boolean
  Currency money_;
};

// IsNumeric: Empty and text that reads as a regional number ("1.234,56",
// " 12 ", "-3", "1e3"); Null and "" are not numeric.
bool is_numeric(const Value& v);
// IsDate: a date value, or text that reads as a valid date.
bool is_date(const Value& v);

}  // namespace mz
