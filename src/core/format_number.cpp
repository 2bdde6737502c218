// Number patterns of Format: "0000", "###,##0.00", "00/00/0000", ...
#include <algorithm>
#include <string>
#include <vector>

#include "core/format_patterns.h"

namespace mz {
namespace {

struct Token {
  enum class Kind { Zero, Hash, Point, Literal } kind;
  std::string literal;
  bool in_fraction = false;
};

struct NumberPattern {
  std::vector<Token> tokens;
  bool grouping = false;
  int whole_places = 0;
  int fraction_places = 0;
};

NumberPattern parse(std::string_view pattern) {
  NumberPattern parsed;
  bool point = false;
  for (char c : pattern) {
    if (c == '0' || c == '#') {
      parsed.tokens.push_back({c == '0' ? Token::Kind::Zero : Token::Kind::Hash, "", point});
      ++(point ? parsed.fraction_places : parsed.whole_places);
    } else if (c == '.' && !point) {
      parsed.tokens.push_back({Token::Kind::Point, "", false});
      point = true;
    } else if (c == ',') {
      parsed.grouping = true;
    } else if (!parsed.tokens.empty() && parsed.tokens.back().kind == Token::Kind::Literal) {
      parsed.tokens.back().literal += c;
    } else {
      parsed.tokens.push_back({Token::Kind::Literal, std::string(1, c), point});
    }
  }
  return parsed;
}

}  // namespace

std::string format_number(const DecimalNumber& number, std::string_view pattern) {
  NumberPattern parsed = parse(pattern);
  DecimalNumber rounded = round_half_away(number, parsed.fraction_places);
  std::string whole = rounded.integer_digits();
  std::string fraction = rounded.fraction_digits();

  int whole_digits = static_cast<int>(whole.size());
  int excess = std::max(0, whole_digits - parsed.whole_places);
  int places_left = parsed.whole_places + excess;  // counted from the right
  bool zero_fill = false;  // from the first "0" on, missing digits show as zeros
  bool first_place = true;
  bool sign_written = !rounded.negative;
  size_t fraction_index = 0;
  std::string out;
  auto write_sign = [&] {
    if (!sign_written) out += '-';
    sign_written = true;
  };

  for (const Token& token : parsed.tokens) {
    if (token.kind == Token::Kind::Literal) {
      out += token.literal;
    } else if (token.kind == Token::Kind::Point) {
      write_sign();
      out += ',';
    } else if (token.in_fraction) {
      if (fraction_index < fraction.size()) out += fraction[fraction_index];
      else if (token.kind == Token::Kind::Zero) out += '0';
      ++fraction_index;
    } else {
      write_sign();
      if (token.kind == Token::Kind::Zero) zero_fill = true;
      int count = first_place ? 1 + excess : 1;
      first_place = false;
      for (; count > 0; --count, --places_left) {
        int index = whole_digits - places_left;
        if (index >= 0) out += whole[static_cast<size_t>(index)];
        else if (zero_fill) out += '0';
        else continue;
        if (parsed.grouping && places_left > 1 && (places_left - 1) % 3 == 0) out += '.';
      }
    }
  }
  return out;
}

}  // namespace mz
