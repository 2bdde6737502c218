#include "core/text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/error.h"

namespace mz {
namespace {

TEST(CoreText, CountsCharactersNotBytes) {
  struct Case {
    std::string actual;
    const char* expected;
  };
  const std::vector<Case> cases = {
      {left("ação", 2), "aç"},
      {left("ab", 5), "ab"},
      {right("ação", 2), "ão"},
      {right("ação", 9), "ação"},
      {mid("ação", 2, 2), "çã"},
      {mid("ação", 3), "ão"},
      {mid("ação", 5), ""},
      {mid("ação", 9, 2), ""},
      {mid("Conceição", 6, 10), "ição"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.actual, c.expected);
  EXPECT_EQ(len("ação"), 4u);
  EXPECT_EQ(len(""), 0u);
  EXPECT_EQ(instr("pão de ação", "ação"), 8u);
  EXPECT_EQ(instr("ação", "x"), 0u);
  EXPECT_EQ(instr("çaXbX", "X", 4), 5u);
  EXPECT_EQ(instr("abc", "", 2), 2u);
  EXPECT_EQ(instr("abc", "a", 5), 0u);
  EXPECT_THROW(mid("abc", 0), Error);
}

TEST(CoreText, CaseOverAccentedLetters) {
  EXPECT_EQ(ucase("ação é ü ñ ÿ õ ê"), "AÇÃO É Ü Ñ Ÿ Õ Ê");
  EXPECT_EQ(ucase("d'ávila 12"), "D'ÁVILA 12");
  EXPECT_EQ(ucase("ß÷"), "ß÷");
  EXPECT_EQ(lcase("AÇÃO É ×"), "ação é ×");
}

TEST(CoreText, TrimsBlanksOnly) {
  EXPECT_EQ(trim("  a b  "), "a b");
  EXPECT_EQ(trim("\ta "), "\ta");
  EXPECT_EQ(ltrim("  a "), "a ");
  EXPECT_EQ(rtrim("  a "), "  a");
  EXPECT_EQ(trim("   "), "");
  EXPECT_EQ(space(3), "   ");
}

TEST(CoreText, ReplacesEveryOccurrence) {
  EXPECT_EQ(replace_all("a.b.c", ".", ""), "abc");
  EXPECT_EQ(replace_all("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(replace_all("abc", "", "x"), "abc");
}

TEST(CoreText, CodePointsAndOldData) {
  EXPECT_EQ(first_char("ção"), U'ç');
  EXPECT_EQ(first_char("A"), U'A');
  EXPECT_THROW(first_char(""), Error);
  EXPECT_EQ(from_code_point(0x20AC), "€");
  EXPECT_EQ(to_u32("aç€"), U"aç€");
  EXPECT_EQ(to_utf8(U"aç€"), "aç€");

  EXPECT_EQ(ensure_utf8("café"), "café");
  EXPECT_EQ(ensure_utf8("caf\xE9"), "café");          // Windows-1252 é
  EXPECT_EQ(ensure_utf8("\x80 \x93x\x94"), "€ “x”");  // the code page's own high half
}

}  // namespace
}  // namespace mz
