#include "core/decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "core/text.h"

namespace mz {
namespace {


// Drops leading zeros (moving the point) and trailing zeros.
DecimalNumber normalized(bool negative, std::string digits, int point) {
  size_t first = digits.find_first_not_of('0');
  if (first == std::string::npos) return {};
  digits.erase(0, first);
  point -= static_cast<int>(first);
  digits.erase(digits.find_last_not_of('0') + 1);
  return {negative, std::move(digits), point};
}

// Exponents past this are out of any double's reach, so reading stops there.
constexpr int kExponentLimit = 100000;

}  // namespace

std::string DecimalNumber::integer_digits() const {
  if (point <= 0) return "";
  std::string whole = digits.substr(0, static_cast<size_t>(point));
  whole.resize(static_cast<size_t>(point), '0');
  return whole;
}

std::string DecimalNumber::fraction_digits() const {
  int size = static_cast<int>(digits.size());
  if (point >= size) return "";
  if (point >= 0) return digits.substr(static_cast<size_t>(point));
  return std::string(static_cast<size_t>(-point), '0') + digits;
}

std::optional<DecimalNumber> read_regional_number(std::string_view text) {
  std::string_view s = strip_blanks(text);

  size_t i = 0;
  bool negative = false;
  if (i < s.size() && (s[i] == '-' || s[i] == '+')) negative = s[i++] == '-';

  std::string digits;
  int whole_digits = 0;
  bool comma = false;
  for (; i < s.size(); ++i) {
    char c = s[i];
    if (is_digit(c)) {
      digits += c;
      if (!comma) ++whole_digits;
    } else if (c == '.' && !comma && whole_digits > 0) {
      continue;  // grouping is not checked, as the old runtime did not
    } else if (c == ',' && !comma) {
      comma = true;
    } else {
      break;
    }
  }
  if (digits.empty()) return std::nullopt;

  int exponent = 0;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
    ++i;
    bool exponent_negative = false;
    if (i < s.size() && (s[i] == '-' || s[i] == '+')) exponent_negative = s[i++] == '-';
    size_t exponent_start = i;
    for (; i < s.size() && is_digit(s[i]); ++i)
      exponent = std::min(kExponentLimit, exponent * 10 + (s[i] - '0'));
    if (i == exponent_start) return std::nullopt;
    if (exponent_negative) exponent = -exponent;
  }
  if (i != s.size()) return std::nullopt;

  DecimalNumber number = normalized(negative, std::move(digits), whole_digits + exponent);
  if (!std::isfinite(to_double(number))) return std::nullopt;
  return number;
}

DecimalNumber decimal_from_double(double value) {
  if (value == 0 || !std::isfinite(value)) return {};
  char buffer[40];
  auto result = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value),
                              std::chars_format::scientific, 14);
  std::string_view text(buffer, static_cast<size_t>(result.ptr - buffer));
  // "d.ddddddddddddddde+XX"
  size_t e = text.find('e');
  std::string digits;
  digits += text[0];
  digits += text.substr(2, e - 2);
  int exponent = std::atoi(std::string(text.substr(e + 1)).c_str());
  return normalized(value < 0, std::move(digits), exponent + 1);
}

DecimalNumber decimal_from_currency(Currency value) {
  bool negative = value.units < 0;
  uint64_t magnitude = negative ? 0 - static_cast<uint64_t>(value.units) : static_cast<uint64_t>(value.units);
  std::string digits = std::to_string(magnitude);
  int point = static_cast<int>(digits.size()) - 4;
  return normalized(negative, std::move(digits), point);
}

DecimalNumber round_half_away(const DecimalNumber& number, int decimals) {
  int size = static_cast<int>(number.digits.size());
  int keep = number.point + decimals;
  if (size <= keep) return number;
  if (keep < 0) return {number.negative, "", 0};

  std::string digits = number.digits.substr(0, static_cast<size_t>(keep));
  int point = number.point;
  if (number.digits[static_cast<size_t>(keep)] >= '5') {
    int k = keep - 1;
    while (k >= 0 && digits[static_cast<size_t>(k)] == '9') digits[static_cast<size_t>(k--)] = '0';
    if (k >= 0) {
      ++digits[static_cast<size_t>(k)];
    } else {
      digits.insert(digits.begin(), '1');
      ++point;
    }
  }
  DecimalNumber rounded = normalized(number.negative, std::move(digits), point);
  rounded.negative = number.negative;
  return rounded;
}

double to_double(const DecimalNumber& number) {
  if (number.is_zero()) return 0;
  std::string text = "0." + number.digits + "e" + std::to_string(number.point);
  double value = 0;
  auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range)
    value = number.point > 0 ? std::numeric_limits<double>::infinity() : 0.0;
  return number.negative ? -value : value;
}

std::optional<int64_t> to_currency_units(const DecimalNumber& number) {
  DecimalNumber rounded = round_half_away(number, 4);
  std::string whole = rounded.integer_digits();
  if (whole.size() > 15) return std::nullopt;
  std::string fraction = rounded.fraction_digits();
  fraction.resize(4, '0');
  unsigned __int128 magnitude = 0;
  for (char c : whole + fraction) magnitude = magnitude * 10 + static_cast<unsigned>(c - '0');
  unsigned __int128 limit = static_cast<unsigned __int128>(std::numeric_limits<int64_t>::max()) +
                            (rounded.negative ? 1 : 0);
  if (magnitude > limit) return std::nullopt;
  if (rounded.negative) return static_cast<int64_t>(0 - static_cast<uint64_t>(magnitude));
  return static_cast<int64_t>(magnitude);
}

}  // namespace mz
