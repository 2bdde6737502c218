#include "core/input_helpers.h"

#include <optional>

#include "core/format.h"
#include "core/regional.h"
#include "core/text.h"

namespace mz {
namespace {

constexpr char32_t kBackspace = 8;


// Modulus 11 check digit over `digits` weighted 2, 3, ... from the right,
// the weight going back to 2 after `top_weight`.
char check_digit(std::string_view digits, int top_weight) {
  int sum = 0, weight = 2;
  for (size_t i = digits.size(); i-- > 0;) {
    sum += (digits[i] - '0') * weight;
    weight = weight == top_weight ? 2 : weight + 1;
  }
  int remainder = sum % 11;
  return remainder < 2 ? '0' : static_cast<char>('0' + 11 - remainder);
}

// Digits at every place the shape has "#", and the shape's own separators
// elsewhere; nullopt when the text is not in that shape.
std::optional<std::string> digits_in_shape(std::string_view text, std::string_view shape) {
  if (text.size() != shape.size()) return std::nullopt;
  std::string digits;
  for (size_t i = 0; i < shape.size(); ++i) {
    bool fits = shape[i] == '#' ? is_digit(text[i]) : shape[i] == text[i];
    if (!fits) return std::nullopt;
    if (shape[i] == '#') digits += text[i];
  }
  return digits;
}

std::string verdict(bool valid) { return valid ? "True" : "False"; }

}  // namespace

char32_t so_numero(std::string_view text, char32_t key) {
  if ((key >= U'0' && key <= U'9') || key == kBackspace) return key;
  if (key == U',' || key == U'.') return text.find(',') == std::string_view::npos ? U',' : 0;
  return 0;
}

std::string tira_caracteres(std::string_view text, std::string_view set) {
  std::string result(text);
  for (char32_t c : to_u32(set)) result = replace_all(result, from_code_point(c), "");
  return result;
}

std::string formata_cnpj(std::string_view text) {
  std::string d = tira_caracteres(text, ".,/-");
  return mid(d, 1, 2) + "." + mid(d, 3, 3) + "." + mid(d, 6, 3) + "/" + mid(d, 9, 4) + "-" + mid(d, 13, 2);
}

std::string formata_cpf(std::string_view text) {
  std::string d = tira_caracteres(text, ".,/-");
  return mid(d, 1, 3) + "." + mid(d, 4, 3) + "." + mid(d, 7, 3) + "-" + mid(d, 10, 2);
}

std::string valida_cnpj(std::string_view text) {
  auto digits = digits_in_shape(text, "########/####-##");
  if (!digits) return "";
  std::string base = digits->substr(0, 12);
  char first = check_digit(base, 9);
  char second = check_digit(base + first, 9);
  return verdict(digits->substr(12) == std::string{first, second});
}

std::string valida_cpf(std::string_view text) {
  // Plain eleven digits, or as the masked field gives them, "#########-##".
  auto digits = digits_in_shape(text, "###########");
  if (!digits) digits = digits_in_shape(text, "#########-##");
  if (!digits) return "";
  std::string base = digits->substr(0, 9);
  char first = check_digit(base, 10);
  char second = check_digit(base + first, 11);
  return verdict(digits->substr(9) == std::string{first, second});
}

std::string tira_acento(std::string_view text) {
  struct Range {
    char32_t from, to;
    char plain;
  };
  // By ANSI code; the gaps (215, 216, ...) are kept as they are.
  static constexpr Range kRanges[] = {
      {192, 197, 'A'}, {224, 229, 'a'}, {200, 203, 'E'}, {232, 235, 'e'}, {204, 207, 'I'},
      {236, 239, 'i'}, {210, 214, 'O'}, {242, 246, 'o'}, {217, 220, 'U'}, {249, 252, 'u'},
      {231, 231, 'c'}, {199, 199, 'C'}, {209, 209, 'N'}, {241, 241, 'n'}};
  std::u32string chars = to_u32(text);
  for (char32_t& c : chars) {
    for (const Range& range : kRanges) {
      if (c >= range.from && c <= range.to) c = static_cast<char32_t>(range.plain);
    }
  }
  return to_utf8(chars);
}

std::string date_field_rule(std::string_view text, Date today) {
  if (!is_date(Value(format(Value(text), "##/##/####")))) return date_text(today.date_only());
  return std::string(text);
}

std::string money_field_rule(std::string_view text) { return text.empty() ? "0,00" : std::string(text); }

}  // namespace mz
