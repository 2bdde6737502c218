#include "store/collation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace mz::store {
namespace {

int sign(int v) { return (v > 0) - (v < 0); }

TEST(StoreCollation, CaseIsIgnoredAccentsAreNot) {
  struct Case {
    const char* a;
    const char* b;
    int expected;
  };
  const std::vector<Case> cases = {
      {"maria", "MARIA", 0},          {"ção", "ÇÃO", 0},          {"álvaro", "alvaro", 1},
      {"alvaro", "álvaro", -1},       {"álvaro", "alvas", -1},    {"Álvaro", "ÁLVARO", 0},
      {"9999", "10000", 1},           {"0001", "0002", -1},       {"", "A", -1},
      {"JOSÉ", "JOSE", 1},            {"JOSÉ", "JOSEFA", -1},     {"Sant'Ana", "SANT'ANA", 0},
      {"ABC", "AB", 1},               {"b", "Á", 1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.a) + " vs " + c.b);
    EXPECT_EQ(sign(compare_text(c.a, c.b)), c.expected);
    EXPECT_EQ(sign(compare_text(c.b, c.a)), -c.expected);
  }
}

TEST(StoreCollation, AccentedNamesSortAmongTheirLetter) {
  std::vector<std::string> names = {"Bruno", "álvaro", "Zélia", "Antônio", "Élcio", "eduardo", "ana"};
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) { return compare_text(a, b) < 0; });
  EXPECT_EQ(names, (std::vector<std::string>{"álvaro", "ana", "Antônio", "Bruno", "eduardo", "Élcio", "Zélia"}));
}

TEST(StoreCollation, LikeWithTheOldWildCards) {
  struct Case {
    const char* text;
    const char* pattern;
    bool matches;
  };
  const std::vector<Case> cases = {
      {"MARIA DA SILVA", "*silva*", true}, {"MARIA DA SILVA", "*SOUZA*", false}, {"CAMISA", "CAM*", true},
      {"BLUSA CAMISA", "CAM*", false},     {"", "**", true},                   {"QUALQUER", "**", true},
      {"JOÃO", "*joão*", true},            {"JOAO", "*JOÃO*", false},          {"A1", "A#", true},
      {"AB", "A#", false},                 {"CASA", "C?SA", true},             {"CASA", "C[AO]SA", true},
      {"CESA", "C[!AO]SA", true},          {"COSA", "C[!AO]SA", false},        {"M5", "M[0-9]", true},
      {"100%", "100%", true},              {"abc", "abc", true},               {"abcd", "abc", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.text) + " like " + c.pattern);
    EXPECT_EQ(like_match(c.text, c.pattern), c.matches);
  }
}

}  // namespace
}  // namespace mz::store
