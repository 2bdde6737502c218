#pragma once
// Reading and writing numbers and dates as the shop's regional settings show
// them: decimal comma, "." grouping, dd/mm/yyyy with a four-digit year.
#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace mz {

// "1.234,56", "-12", "0,5", " 7 " -> number; "", "abc", "1,2,3" -> nullopt.
std::optional<double> parse_number(std::string_view text);
// Same reading, rounded to four decimals exactly (no binary detour).
// Throws Error 6 when the number is past the currency range.
std::optional<Currency> parse_money(std::string_view text);
// "22/11/2026", "2/3/2026", "22/11/26", "22-11-2026", "22.11.2026", with an
// optional " hh:mm[:ss]", or a time alone; nullopt when the day does not
// exist (31/02/2020). Like the old runtime, a day and month that only make
// sense swapped are read swapped ("12/31/2020" is 31/12/2020). Years of one
// or two digits fall in 1930..2029.
std::optional<Date> parse_date(std::string_view text);

// CStr of a number: up to 15 significant digits, decimal comma, no grouping.
std::string number_text(double value);
std::string currency_text(Currency value);
// "dd/mm/yyyy", plus " hh:mm:ss" when the value has a time of day; a value
// on day zero (30/12/1899) shows its time alone, as the old runtime did.
std::string date_text(Date value);
// The month's name as the regional settings write it: 11 -> "novembro".
std::string month_name(int month);

// Val: leading blanks skipped (blanks inside the digits too), digits with "."
// as the decimal point and an optional exponent ("E" or "D"); stops at the
// first other character. "1.234,56" -> 1.234, "12,50" -> 12, "abc" -> 0.
// Throws Error 6 past the range of a double.
double val(std::string_view text);

// Whole-day arithmetic used by due dates and periods.
Date date_add_days(Date date, int days);
long date_diff_days(Date from, Date to);  // to - from, in whole days

}  // namespace mz
