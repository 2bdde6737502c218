#pragma once
// Format(value, pattern) for the patterns the system uses.
#include <string>
#include <string_view>

#include "core/value.h"

namespace mz {

// Patterns: zero masks ("0000", "00000000"); "###,##0.00", "###,###.00"
// (zero shows ",00"), "#########.00"; "00/00/0000" and "##/##/####" on digit
// text; "dd/mm/yyyy", "mm/dd/yyyy", "dd.mm.yyyy", "mmmm" (month name in
// Portuguese, lower case), "HH:MM", "hh:mm:ss". Numeric text is read with the
// regional rules first; text that is not a number (a date's text, "") passes
// through digit masks unchanged, and text that is not a date through date
// patterns, as the old runtime did. Null gives "". Empty is zero with no
// digits, as in the old runtime: "0000" and "00/00/0000" show as they stand,
// "###,###.00" as ",00"; in a date pattern it is day zero, 30/12/1899.
// Rounding is half away from zero on the decimal digits (2,675 -> "2,68").
std::string format(const Value& value, std::string_view pattern);

}  // namespace mz
