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
// regional rules first; text that is not a number passes through digit masks
// as the old runtime did; Empty and Null give "".
std::string format(const Value& value, std::string_view pattern);

}  // namespace mz
