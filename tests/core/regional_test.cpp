#include "core/regional.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "core/error.h"

namespace mz {
namespace {

TEST(CoreRegional, ReadsMoneyAsTheShopWritesIt) {
  struct Case {
    const char* text;
    std::optional<int64_t> units;
  };
  const std::vector<Case> cases = {
      {"1.234,56", 12345600}, {"0,00", 0},          {"", std::nullopt},  {"abc", std::nullopt},
      {"-1,5", -15000},       {"1,2,3", std::nullopt}, {" 7 ", 70000},   {",5", 5000},
      {"1.000.000", 10000000000}, {"1e3", 10000000}, {"2,67495", 26750}, {"-0,00005", -1},
      {"1,5.3", std::nullopt}, {"12-", std::nullopt}, {"R$ 5", std::nullopt}, {"-", std::nullopt},
  };
  for (const auto& c : cases) {
    auto money = parse_money(c.text);
    ASSERT_EQ(money.has_value(), c.units.has_value()) << c.text;
    if (money) {
      EXPECT_EQ(money->units, *c.units) << c.text;
    }
  }
  try {
    parse_money("1e20");
    FAIL() << "a number past the currency range must overflow";
  } catch (const Error& e) {
    EXPECT_EQ(e.number(), err::kOverflow);
  }
}

TEST(CoreRegional, ReadsNumbers) {
  EXPECT_DOUBLE_EQ(*parse_number("1.234,56"), 1234.56);
  EXPECT_DOUBLE_EQ(*parse_number("-12"), -12);
  EXPECT_DOUBLE_EQ(*parse_number("0,5"), 0.5);
  EXPECT_DOUBLE_EQ(*parse_number("1e3"), 1000);
  for (const char* bad : {"", " ", ",", "abc", "1,2,3", "1.5,2.1", "1e", "1e400"})
    EXPECT_FALSE(parse_number(bad).has_value()) << bad;
}

TEST(CoreRegional, ReadsDates) {
  struct Case {
    const char* text;
    std::optional<Date> date;
  };
  const std::vector<Case> cases = {
      {"22/11/2026", Date::from_ymd(2026, 11, 22)},
      {"2/3/2026", Date::from_ymd(2026, 3, 2)},
      {"22/11/26", Date::from_ymd(2026, 11, 22)},
      {"22/11/30", Date::from_ymd(1930, 11, 22)},
      {"22-11-2026", Date::from_ymd(2026, 11, 22)},
      {"22.11.2026", Date::from_ymd(2026, 11, 22)},
      {" 22/11/2026 14:05", Date::from_ymd_hms(2026, 11, 22, 14, 5, 0)},
      {"22/11/2026 14:05:09", Date::from_ymd_hms(2026, 11, 22, 14, 5, 9)},
      {"29/02/2024", Date::from_ymd(2024, 2, 29)},
      {"12/31/2020", Date::from_ymd(2020, 12, 31)},
      {"14:05", Date::from_ymd_hms(1899, 12, 30, 14, 5, 0)},
      {"31/02/2020", std::nullopt},
      {"29/02/2023", std::nullopt},
      {"", std::nullopt},
      {"22/11", std::nullopt},
      {"22/11/2026x", std::nullopt},
      {"22/11/2026 24:00", std::nullopt},
      {"__/__/____", std::nullopt},
  };
  for (const auto& c : cases) {
    auto date = parse_date(c.text);
    ASSERT_EQ(date.has_value(), c.date.has_value()) << c.text;
    if (date) {
      EXPECT_DOUBLE_EQ(date->serial, c.date->serial) << c.text;
    }
  }
}

TEST(CoreRegional, WritesNumbersAndDates) {
  struct Case {
    std::string actual;
    const char* expected;
  };
  const std::vector<Case> cases = {
      {number_text(1234.5), "1234,5"},
      {number_text(-0.25), "-0,25"},
      {number_text(0.1 + 0.2), "0,3"},
      {number_text(1.0 / 3), "0,333333333333333"},
      {number_text(123456789012345.0), "123456789012345"},
      {number_text(1e15), "1E+15"},
      {number_text(0.0001), "0,0001"},
      {number_text(0.000015), "1,5E-05"},
      {number_text(-0.0), "0"},
      {currency_text(Currency::from_units(12345000)), "1234,5"},
      {currency_text(Currency::from_units(10000)), "1"},
      {currency_text(Currency::from_units(-1)), "-0,0001"},
      {date_text(Date::from_ymd(2026, 11, 22)), "22/11/2026"},
      {date_text(Date::from_ymd_hms(2026, 1, 2, 14, 5, 0)), "02/01/2026 14:05:00"},
      {date_text(Date{0.5}), "12:00:00"},
      {month_name(3), "março"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.actual, c.expected);
}

TEST(CoreRegional, ValStopsWhereADecimalPointNumberEnds) {
  struct Case {
    const char* text;
    double expected;
  };
  const std::vector<Case> cases = {
      {"1.234,56", 1.234}, {"12,50", 12}, {"abc", 0},  {"  -12.5abc", -12.5}, {" 1 2 3", 123},
      {"1.2.3", 1.2},      {"", 0},       {".5", 0.5}, {"1e3", 1000},         {"1e", 1},
      {"2D2", 200},        {"- 5", -5},   {"+7", 7},
  };
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(val(c.text), c.expected) << c.text;
  EXPECT_THROW(val("1e999"), Error);
}

TEST(CoreRegional, DayArithmeticAcrossMonthAndLeapYearEnds) {
  struct Case {
    Date from;
    int days;
    Date expected;
  };
  const std::vector<Case> cases = {
      {Date::from_ymd(2024, 1, 31), 30, Date::from_ymd(2024, 3, 1)},
      {Date::from_ymd(2023, 1, 31), 30, Date::from_ymd(2023, 3, 2)},
      {Date::from_ymd(2024, 2, 28), 1, Date::from_ymd(2024, 2, 29)},
      {Date::from_ymd(2023, 2, 28), 1, Date::from_ymd(2023, 3, 1)},
      {Date::from_ymd(2025, 12, 31), 1, Date::from_ymd(2026, 1, 1)},
      {Date::from_ymd(2024, 3, 1), -1, Date::from_ymd(2024, 2, 29)},
      {Date::from_ymd_hms(2026, 11, 22, 14, 5, 0), 30, Date::from_ymd_hms(2026, 12, 22, 14, 5, 0)},
  };
  for (const auto& c : cases) {
    Date sum = date_add_days(c.from, c.days);
    EXPECT_DOUBLE_EQ(sum.serial, c.expected.serial) << date_text(c.from) << " + " << c.days;
    EXPECT_EQ(date_diff_days(c.from, sum), c.days);
  }
  EXPECT_EQ(date_diff_days(Date::from_ymd(2024, 1, 1), Date::from_ymd(2025, 1, 1)), 366);
  EXPECT_EQ(date_diff_days(Date::from_ymd_hms(2026, 11, 22, 23, 0, 0), Date::from_ymd_hms(2026, 11, 23, 1, 0, 0)), 1);
}

}  // namespace
}  // namespace mz
