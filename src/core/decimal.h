#pragma once
// A number held as decimal digits. Money and Format round on the digits the
// user sees, never on the binary double (2,675 must round to 2,68).
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace mz {

struct DecimalNumber {
  bool negative = false;
  std::string digits;  // significant digits without leading or trailing zeros; empty for zero
  int point = 0;       // value = 0.digits x 10^point

  bool is_zero() const { return digits.empty(); }
  std::string integer_digits() const;   // "" when the integer part is zero
  std::string fraction_digits() const;  // without trailing zeros
};

// The one reader of numbers typed in the shop's regional settings: blanks
// around, an optional sign, digits with "." grouping, one decimal comma, an
// optional exponent. nullopt for anything else and for numbers past a double.
std::optional<DecimalNumber> read_regional_number(std::string_view text);

// A double as the old runtime wrote it: 15 significant digits.
DecimalNumber decimal_from_double(double value);
DecimalNumber decimal_from_currency(Currency value);

// Rounds half away from zero to `decimals` places; the sign is kept even
// when the result is zero, as the old runtime printed "-0,00".
DecimalNumber round_half_away(const DecimalNumber& number, int decimals);

double to_double(const DecimalNumber& number);
// Ten-thousandths, rounded half away from zero; nullopt past the currency range.
std::optional<int64_t> to_currency_units(const DecimalNumber& number);

}  // namespace mz
