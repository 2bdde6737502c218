#pragma once
// The two families of Format patterns, behind format().
#include <string>
#include <string_view>

#include "core/decimal.h"
#include "core/value.h"

namespace mz {

// A pattern with day, month, year, hour, minute or second letters.
bool is_date_pattern(std::string_view pattern);

// Digit placeholders "0" (digit or zero) and "#" (digit or nothing), the
// first "." as the decimal comma, "," anywhere for "." grouping, anything
// else copied. Digits beyond the placeholders go to the first one, so a
// number is never cut.
std::string format_number(const DecimalNumber& number, std::string_view pattern);

// d dd, m mm mmm mmmm (minutes right after an hour), yy yyyy, h hh, n nn, s ss.
std::string format_date(Date date, std::string_view pattern);

}  // namespace mz
