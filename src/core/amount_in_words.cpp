#include "core/amount_in_words.h"

#include <array>

#include "core/text.h"

namespace mz {
namespace {

constexpr std::array<const char*, 10> kUnits = {"", "um", "dois", "três", "quatro", "cinco", "seis", "sete", "oito", "nove"};
constexpr std::array<const char*, 20> kTens = {"",       "dez",       "vinte",     "trinta",   "quarenta",
                                               "cinquenta", "sessenta", "setenta",  "oitenta",  "noventa",
                                               "dez",    "onze",      "doze",      "treze",    "quatorze",
                                               "quinze", "dezesseis", "dezessete", "dezoito",  "dezenove"};
constexpr std::array<const char*, 10> kHundreds = {"",           "cem",        "duzentos",  "trezentos", "quatrocentos",
                                                   "quinhentos", "seiscentos", "setecentos", "oitocentos", "novecentos"};
// Singular at the even index, plural at the next; names keep their blank.
constexpr std::array<const char*, 12> kGroupNames = {"",        "",         "mil ",     "mil ",
                                                     "milhão ", "milhões ", "bilhão ",  "bilhões ",
                                                     "trilhão ", "trilhões ", "quadrilhão ", "quadrilhões "};

// Three digits in words; a group without hundreds begins with a blank.
// A place past the end or not a digit counts as 0, so that an amount
// shorter than the format (",") still has its words.
int digit_at(std::string_view digits, size_t i) { return i < digits.size() && is_digit(digits[i]) ? digits[i] - '0' : 0; }

std::string three_digits(std::string_view digits) {
  int a = digit_at(digits, 0), b = digit_at(digits, 1), c = digit_at(digits, 2);
  std::string hundreds = (a == 1 && (b != 0 || c != 0)) ? "cento" : kHundreds[static_cast<size_t>(a)];
  std::string tens = b == 1 ? kTens[static_cast<size_t>(10 + c)] : kTens[static_cast<size_t>(b)];
  std::string units = b == 1 ? "" : kUnits[static_cast<size_t>(c)];
  std::string words = hundreds;
  if (!hundreds.empty() && (!tens.empty() || !units.empty())) words += " e";
  if (!tens.empty()) {
    words += " " + tens;
    if (!units.empty()) words += " e";
  }
  if (!units.empty()) words += " " + units;
  return words;
}

bool begins_with_um(const std::string& words) { return trim(words).rfind("um", 0) == 0; }

}  // namespace

std::string amount_in_words(std::string_view amount) {
  if (amount.empty()) return {};
  std::string whole = amount.size() > 3 ? trim(amount.substr(0, amount.size() - 3)) : std::string();
  std::string cents(amount.substr(amount.size() >= 2 ? amount.size() - 2 : 0));
  std::string phrase;
  if (!whole.empty()) {
    while (whole.size() % 3 != 0) whole = "0" + whole;
    size_t index = 0;
    for (size_t end = whole.size(); end > 0; end -= 3, index += 2) {
      std::string words = three_digits(std::string_view(whole).substr(end - 3, 3));
      std::string name = kGroupNames.at(begins_with_um(words) ? index : index + 1);
      std::string group = trim(words + " " + name);
      phrase = end > 3 ? trim("," + group + phrase) : trim(group + phrase);
    }
    phrase = (phrase.rfind('u', 0) == 0 ? "Hu" + phrase.substr(1) : ucase(left(phrase, 1)) + mid(phrase, 2));
    phrase += phrase == "Hum" ? " real" : " reais";
  }
  if (cents == "00") return phrase + ".";
  std::string cent_words = three_digits("0" + cents);
  return phrase + " e" + cent_words + (trim(cent_words) == "um" ? " centavo." : " centavos.");
}

}  // namespace mz
