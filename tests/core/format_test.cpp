#include "core/format.h"

#include <gtest/gtest.h>

#include <vector>

namespace mz {
namespace {

struct FormatCase {
  Value value;
  const char* pattern;
  const char* expected;
};

void expect_all(const std::vector<FormatCase>& cases) {
  for (const auto& c : cases)
    EXPECT_EQ(format(c.value, c.pattern), c.expected) << "value '" << c.value.text() << "' pattern " << c.pattern;
}

TEST(CoreFormat, ZeroMasksPadAndNeverCut) {
  expect_all({
      {Value(1.0), "0000", "0001"},
      {Value("7"), "0000", "0007"},
      {Value(" 12 "), "000000", "000012"},
      {Value(9999.0 + 1), "0000", "10000"},
      {Value(Value("9999").to_number() + 1), "00000000", "00010000"},
      {Value(12345678.0), "00000000", "12345678"},
      {Value(Currency::from_units(70000)), "00000", "00007"},
      {Value("1.234"), "0000", "1234"},
      {Value(2.5), "0000", "0003"},
      {Value(-2.5), "0000", "-0003"},
      {Value("abc"), "0000", "abc"},
      {Value(""), "0000", ""},
      {Value(), "0000", "0000"},
      {Value::null(), "0000", ""},
  });
}

TEST(CoreFormat, MoneyPatterns) {
  expect_all({
      {Value(1234.5), "###,##0.00", "1.234,50"},
      {Value(1234567.891), "###,##0.00", "1.234.567,89"},
      {Value(100000.0), "###,##0.00", "100.000,00"},
      {Value(0.0), "###,##0.00", "0,00"},
      {Value(0.5), "###,##0.00", "0,50"},
      {Value(-1234.5), "###,##0.00", "-1.234,50"},
      {Value(2.675), "###,##0.00", "2,68"},
      {Value(1.005), "###,##0.00", "1,01"},
      {Value(999.995), "###,##0.00", "1.000,00"},
      {Value(Currency::from_units(123456)), "###,##0.00", "12,35"},
      {Value("1.234,56"), "###,##0.00", "1.234,56"},
      {Value("12,5"), "###,##0.00", "12,50"},
      {Value("abc"), "###,##0.00", "abc"},
      {Value(""), "###,##0.00", ""},
      {Value(), "###,##0.00", "0,00"},
      {Value(0.0), "###,###.00", ",00"},
      {Value("0,00"), "###,###.00", ",00"},
      {Value(0.5), "###,###.00", ",50"},
      {Value(1234.0), "###,###.00", "1.234,00"},
      {Value(1234567.5), "###,###.00", "1.234.567,50"},
      {Value(), "###,###.00", ",00"},
      {Value(1234.5), "#########.00", "1234,50"},
      {Value(1234567.891), "#########.00", "1234567,89"},
      {Value(1234567890.12), "#########.00", "1234567890,12"},
      {Value(0.5), "#########.00", ",50"},
      {Value("1.234,5"), "#########.00", "1234,50"},
      {Value(""), "#########.00", ""},
  });
}

TEST(CoreFormat, DigitMasksOnDigitText) {
  Date date = Date::from_ymd(2026, 11, 22);
  expect_all({
      {Value("22112026"), "00/00/0000", "22/11/2026"},
      {Value(22112026.0), "00/00/0000", "22/11/2026"},
      {Value("1012026"), "00/00/0000", "01/01/2026"},
      {Value("22/11/2026"), "00/00/0000", "22/11/2026"},
      {Value(date), "00/00/0000", "22/11/2026"},
      {Value(""), "00/00/0000", ""},
      {Value(), "00/00/0000", "00/00/0000"},
      {Value("22112026"), "##/##/####", "22/11/2026"},
      {Value("2211202"), "##/##/####", "2/21/1202"},
      {Value("22/11/2026"), "##/##/####", "22/11/2026"},
      {Value("__/__/____"), "##/##/####", "__/__/____"},
      {Value(""), "##/##/####", ""},
      {Value(date), "##/##/####", "22/11/2026"},
      {Value("1503"), "00/00", "15/03"},
      {Value("503"), "00/00", "05/03"},
  });
}

TEST(CoreFormat, DatePatterns) {
  Value afternoon(Date::from_ymd_hms(2026, 11, 22, 14, 5, 9));
  Value march(Date::from_ymd(2026, 3, 5));
  expect_all({
      {afternoon, "dd/mm/yyyy", "22/11/2026"},
      {afternoon, "mm/dd/yyyy", "11/22/2026"},
      {afternoon, "dd.mm.yyyy", "22.11.2026"},
      {afternoon, "mmmm", "novembro"},
      {afternoon, "HH:MM", "14:05"},
      {afternoon, "hh:mm:ss", "14:05:09"},
      {afternoon, "dd/mm/yyyy hh:mm", "22/11/2026 14:05"},
      {march, "dd/mm/yyyy", "05/03/2026"},
      {march, "mmmm", "março"},
      {march, "HH:MM", "00:00"},
      {Value(Date::from_ymd(2026, 11, 22).serial), "dd/mm/yyyy", "22/11/2026"},
      {Value("22/11/2026"), "mm/dd/yyyy", "11/22/2026"},
      {Value("2/3/2026"), "dd/mm/yyyy", "02/03/2026"},
      {Value("22/11/2026"), "mmmm", "novembro"},
      {Value("31/02/2020"), "mm/dd/yyyy", "31/02/2020"},
      {Value(""), "dd/mm/yyyy", ""},
      {Value(), "dd/mm/yyyy", "30/12/1899"},
      {Value(), "HH:MM", "00:00"},
      {Value(1e10), "dd/mm/yyyy", "10000000000"},
      {Value::null(), "dd.mm.yyyy", ""},
  });
}

}  // namespace
}  // namespace mz

namespace mz {
namespace {

// Document numbers and day-month pairs go through digit masks as numbers, so
// a leading zero is lost where the mask has no zero to keep it.
TEST(CoreFormat, DigitMasksOnDocumentsAndDays) {
  expect_all({
      {Value("12345678000190"), "##############", "12345678000190"},
      {Value("01234567890"), "##############", "1234567890"},
      {Value("123.456.789-01"), "##############", "123.456.789-01"},
      {Value(""), "##############", ""},
      {Value("1203"), "00/00", "12/03"},
      {Value("503"), "00/00", "05/03"},
      {Value("5"), "00", "05"},
      {Value("41"), "0000000", "0000041"},
  });
}

}  // namespace
}  // namespace mz
