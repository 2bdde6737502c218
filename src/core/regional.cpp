#include "core/regional.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "core/calendar.h"
#include "core/decimal.h"
#include "core/error.h"
#include "core/text.h"

namespace mz {
namespace {


// Reads 1..max_digits digits at s[i]; -1 when there is none.
int read_field(std::string_view s, size_t& i, size_t max_digits, size_t* digit_count = nullptr) {
  size_t start = i;
  int value = 0;
  while (i < s.size() && is_digit(s[i]) && i - start < max_digits) value = value * 10 + (s[i++] - '0');
  if (digit_count) *digit_count = i - start;
  return i == start ? -1 : value;
}

// "h:mm" or "h:mm:ss" filling s from i to the end; the second of the day.
std::optional<int> read_time(std::string_view s, size_t i) {
  int hour = read_field(s, i, 2);
  if (hour < 0 || i >= s.size() || s[i++] != ':') return std::nullopt;
  int minute = read_field(s, i, 2);
  int second = 0;
  if (minute < 0) return std::nullopt;
  if (i < s.size() && s[i] == ':') {
    ++i;
    second = read_field(s, i, 2);
  }
  if (i != s.size() || hour > 23 || minute > 59 || second < 0 || second > 59) return std::nullopt;
  return (hour * 60 + minute) * 60 + second;
}

bool is_date_separator(char c) { return c == '/' || c == '-' || c == '.'; }

int full_year(int year, size_t digits) {
  if (digits > 2) return year;
  return year < 30 ? 2000 + year : 1900 + year;
}

// Plain digits with a decimal comma, no grouping: how CStr writes a number.
std::string plain_text(const DecimalNumber& number) {
  if (number.is_zero()) return "0";
  std::string whole = number.integer_digits();
  std::string fraction = number.fraction_digits();
  std::string text = number.negative ? "-" : "";
  text += whole.empty() ? "0" : whole;
  if (!fraction.empty()) text += "," + fraction;
  return text;
}

std::string two_digits(int n) {
  char buffer[8];
  std::snprintf(buffer, sizeof buffer, "%02d", n);
  return buffer;
}

std::string time_text(int second) {
  return two_digits(second / 3600) + ":" + two_digits(second / 60 % 60) + ":" + two_digits(second % 60);
}

}  // namespace

std::optional<double> parse_number(std::string_view text) {
  auto number = read_regional_number(text);
  if (!number) return std::nullopt;
  return to_double(*number);
}

std::optional<Currency> parse_money(std::string_view text) {
  auto number = read_regional_number(text);
  if (!number) return std::nullopt;
  auto units = to_currency_units(*number);
  if (!units) throw Error(err::kOverflow, "Overflow");
  return Currency::from_units(*units);
}

std::optional<Date> parse_date(std::string_view text) {
  std::string_view s = strip_blanks(text);

  if (s.find(':') != std::string_view::npos && s.find_first_of("/-. ") == std::string_view::npos) {
    auto second = read_time(s, 0);
    if (!second) return std::nullopt;
    return calendar::join(0, *second);
  }

  size_t i = 0, year_digits = 0;
  int first = read_field(s, i, 2);
  if (first < 0 || i >= s.size() || !is_date_separator(s[i++])) return std::nullopt;
  int second_field = read_field(s, i, 2);
  if (second_field < 0 || i >= s.size() || !is_date_separator(s[i++])) return std::nullopt;
  int year = read_field(s, i, 4, &year_digits);
  if (year < 0) return std::nullopt;
  year = full_year(year, year_digits);

  int time_of_day = 0;
  if (i < s.size()) {
    if (!is_blank(s[i])) return std::nullopt;
    while (i < s.size() && is_blank(s[i])) ++i;
    auto second = read_time(s, i);
    if (!second) return std::nullopt;
    time_of_day = *second;
  }

  int day = first, month = second_field;
  if (!is_valid_ymd(year, month, day) && is_valid_ymd(year, day, month)) std::swap(day, month);
  if (!is_valid_ymd(year, month, day)) return std::nullopt;
  return calendar::join(calendar::day_number(year, month, day), time_of_day);
}

std::string number_text(double value) {
  DecimalNumber number = decimal_from_double(value);
  int exponent = number.point - 1;
  if (number.is_zero() || (exponent >= -4 && exponent < 15)) return plain_text(number);
  // Scientific notation, as "1,5E-05" and "1E+15".
  std::string text = number.negative ? "-" : "";
  text += number.digits[0];
  if (number.digits.size() > 1) text += "," + number.digits.substr(1);
  text += exponent < 0 ? "E-" : "E+";
  text += two_digits(std::abs(exponent));
  return text;
}

std::string currency_text(Currency value) { return plain_text(decimal_from_currency(value)); }

std::string date_text(Date value) {
  calendar::DayTime parts = calendar::split(value);
  if (parts.day == 0) return time_text(parts.second);
  calendar::Ymd ymd = calendar::civil(parts.day);
  std::string text = two_digits(ymd.day) + "/" + two_digits(ymd.month) + "/" + std::to_string(ymd.year);
  if (parts.second != 0) text += " " + time_text(parts.second);
  return text;
}

std::string month_name(int month) {
  static const char* const kNames[] = {"janeiro", "fevereiro", "março",    "abril",   "maio",     "junho",
                                       "julho",   "agosto",    "setembro", "outubro", "novembro", "dezembro"};
  if (month < 1 || month > 12) throw Error(err::kInvalidProcedureCall, "Invalid procedure call or argument");
  return kNames[month - 1];
}

double val(std::string_view text) {
  // The longest prefix that reads as a number with a decimal point, blanks
  // skipped anywhere, rewritten with the decimal comma for the one reader.
  std::string number;
  bool point = false, digits = false;
  size_t i = 0;
  auto skip_blanks = [&] {
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t' || text[i] == '\n')) ++i;
  };
  skip_blanks();
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) number += text[i++];
  for (skip_blanks(); i < text.size(); ++i, skip_blanks()) {
    if (is_digit(text[i])) {
      number += text[i];
      digits = true;
    } else if (text[i] == '.' && !point) {
      number += ',';
      point = true;
    } else {
      break;
    }
  }
  if (!digits) return 0;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
    std::string exponent = "e";
    ++i;
    skip_blanks();
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) exponent += text[i++];
    for (skip_blanks(); i < text.size() && is_digit(text[i]); ++i, skip_blanks()) exponent += text[i];
    if (is_digit(exponent.back())) number += exponent;
  }
  auto value = parse_number(number);
  if (!value) throw Error(err::kOverflow, "Overflow");  // well formed, so only too large
  return *value;
}

}  // namespace mz
