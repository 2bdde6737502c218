#include "core/input_helpers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text.h"

namespace mz {
namespace {

TEST(CoreInput, SoNumeroFiltersMoneyKeys) {
  struct Case {
    const char* text;
    char32_t key;
    char32_t expected;
  };
  const std::vector<Case> cases = {
      {"12", U'5', U'5'}, {"12", U',', U','}, {"12", U'.', U','}, {"12,5", U',', 0},
      {"12,5", U'.', 0},  {"", 8, 8},         {"12,5", 8, 8},     {"12", U'a', 0},
      {"12", U'-', 0},    {"12", 13, 0},      {"12", U' ', 0},
  };
  for (const auto& c : cases) EXPECT_EQ(so_numero(c.text, c.key), c.expected) << c.text << " key " << int(c.key);
}

TEST(CoreInput, ShapesAndStripsDocuments) {
  struct Case {
    std::string actual;
    const char* expected;
  };
  const std::vector<Case> cases = {
      {tira_caracteres("12.345.678/0001-95", ".,/-"), "12345678000195"},
      {tira_caracteres("ação", "ã"), "aço"},
      {tira_caracteres("aaa", "a"), ""},
      {formata_cnpj("12345678000195"), "12.345.678/0001-95"},
      {formata_cnpj("12.345.678/0001-95"), "12.345.678/0001-95"},
      {formata_cpf("12345678909"), "123.456.789-09"},
      {formata_cpf("123.456.789-09"), "123.456.789-09"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.actual, c.expected);
}

TEST(CoreInput, ValidatorsAnswerTrueFalseOrNothing) {
  struct Case {
    std::string actual;
    const char* expected;
  };
  const std::vector<Case> cases = {
      {valida_cnpj("11222333/0001-81"), "True"},
      {valida_cnpj("11222333/0001-82"), "False"},
      {valida_cnpj("11111111/1111-80"), "True"},
      {valida_cnpj("00000000/0000-00"), "True"},
      {valida_cnpj("11222333000181"), ""},
      {valida_cnpj("11.222.333/0001-81"), ""},
      {valida_cnpj("1122233a/0001-81"), ""},
      {valida_cnpj("#1222333/0001-81"), ""},
      {valida_cnpj("        /    -  "), ""},
      {valida_cpf("11111111111"), "True"},
      {valida_cpf("52998224725"), "True"},
      {valida_cpf("52998224726"), "False"},
      {valida_cpf("529982247-25"), "True"},
      {valida_cpf("12345678909"), "True"},
      {valida_cpf("5299822472"), ""},
      {valida_cpf("5299822472a"), ""},
      {valida_cpf(""), ""},
  };
  for (size_t i = 0; i < cases.size(); ++i) EXPECT_EQ(cases[i].actual, cases[i].expected) << "case " << i;
}

TEST(CoreInput, TiraAcentoFollowsTheCodeRanges) {
  EXPECT_EQ(tira_acento("Ação Éé Üñ ÂÀÅ ìÏ òÔ"), "Acao Ee Un AAA iI oO");
  // 215 and 216, 247 and 248, 253 to 255 fall in the gaps of the table.
  for (char32_t kept : {215, 216, 247, 248, 253, 255}) {
    std::string c = from_code_point(kept);
    EXPECT_EQ(tira_acento(c), c) << int(kept);
  }
}

TEST(CoreInput, DateAndMoneyFieldsNeverLeaveInvalid) {
  Date today = Date::from_ymd_hms(2026, 11, 22, 9, 30, 0);
  struct Case {
    const char* text;
    const char* expected;
  };
  const std::vector<Case> cases = {
      {"15/03/2025", "15/03/2025"}, {"29/02/2024", "29/02/2024"}, {"15032025", "15032025"},
      {"31/02/2020", "22/11/2026"}, {"", "22/11/2026"},           {"__/__/____", "22/11/2026"},
      {"15/03/202_", "22/11/2026"},
  };
  for (const auto& c : cases) EXPECT_EQ(date_field_rule(c.text, today), c.expected) << c.text;

  EXPECT_EQ(money_field_rule(""), "0,00");
  EXPECT_EQ(money_field_rule("12,5"), "12,5");
  EXPECT_EQ(money_field_rule("0"), "0");
}

}  // namespace
}  // namespace mz
