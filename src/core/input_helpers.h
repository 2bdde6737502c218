#pragma once
// Small shared routines of the entry screens that need no screen.
#include <string>
#include <string_view>

#include "core/value.h"

namespace mz {

// Money key filter: digits and Backspace pass, "." and "," become "," unless
// the text has one already, everything else is dropped (returns 0).
char32_t so_numero(std::string_view text, char32_t key);
// Removes every character of `set` from `text`, one character of set at a time.
std::string tira_caracteres(std::string_view text, std::string_view set);
std::string formata_cnpj(std::string_view text);  // "##.###.###/####-##"
std::string formata_cpf(std::string_view text);   // "###.###.###-##"
// "True" or "False"; "" when a digit is missing where one is expected.
std::string valida_cnpj(std::string_view text);  // input "########/####-##"
std::string valida_cpf(std::string_view text);   // input of 11 digits
// Plain letters for printers without accents; other characters are kept.
std::string tira_acento(std::string_view text);

// Leaving a date field: a text that shaped with "##/##/####" is not a valid
// date, or is empty, becomes today's date.
std::string date_field_rule(std::string_view text, Date today);
// Leaving a money field: empty becomes "0,00", anything else stays.
std::string money_field_rule(std::string_view text);

}  // namespace mz
