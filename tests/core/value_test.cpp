#include "core/value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <vector>

#include "core/error.h"
#include "support/errors.h"

namespace mz {
namespace {

using testing::error_number;

Currency money(int64_t units) { return Currency::from_units(units); }

TEST(CoreValue, CurrencyArithmeticRoundsHalfToEven) {
  struct Case {
    Currency actual;
    int64_t units;
  };
  const std::vector<Case> cases = {
      {money(25000) * money(25000), 62500},  // 2,5 x 2,5
      {money(1) * money(5000), 0},           // 0,00005 rounds to the even 0,0000
      {money(3) * money(5000), 2},           // 0,00015 rounds to the even 0,0002
      {money(-3) * money(5000), -2},
      {money(100000) / money(30000), 33333},  // 10 / 3
      {money(20000) / money(30000), 6667},
      {money(1) / money(20000), 0},  // 0,00005
      {Currency::from_double(2.675), 26750},
      {Currency::from_double(0.00005), 1},  // from a double: half away from zero
      {Currency::from_double(-0.00005), -1},
  };
  for (size_t i = 0; i < cases.size(); ++i) EXPECT_EQ(cases[i].actual.units, cases[i].units) << "case " << i;

  EXPECT_EQ(error_number([] { (void)(money(10000) / money(0)); }), err::kDivisionByZero);
  EXPECT_EQ(error_number([] { (void)(money(std::numeric_limits<int64_t>::max()) * money(20000)); }), err::kOverflow);
  EXPECT_EQ(error_number([] { Currency::from_double(1e20); }), err::kOverflow);
  EXPECT_EQ(error_number([] { Currency::from_double(std::nan("")); }), err::kOverflow);
}

TEST(CoreValue, TextAsTheRegionalSettingsShowIt) {
  EXPECT_EQ(Value(1234.5).text(), "1234,5");
  EXPECT_EQ(Value(money(125000)).text(), "12,5");
  EXPECT_EQ(Value(Date::from_ymd_hms(2026, 11, 22, 14, 5, 0)).text(), "22/11/2026 14:05:00");
  EXPECT_EQ(Value::boolean(true).text(), "True");
  EXPECT_EQ(Value().text(), "");
  EXPECT_EQ(Value::null().text(), "");
}

TEST(CoreValue, ConversionsAndTheirErrors) {
  EXPECT_DOUBLE_EQ(Value("1.234,56").to_number(), 1234.56);
  EXPECT_DOUBLE_EQ(Value().to_number(), 0);
  EXPECT_DOUBLE_EQ(Value::boolean(true).to_number(), -1);
  EXPECT_EQ(Value("12,345").to_currency().units, 123450);
  EXPECT_EQ(Value(1.23456).to_currency().units, 12346);
  EXPECT_DOUBLE_EQ(Value("22/11/2026").to_date().serial, Date::from_ymd(2026, 11, 22).serial);
  EXPECT_TRUE(Value("true").to_bool());
  EXPECT_FALSE(Value("0").to_bool());
  EXPECT_TRUE(Value("2").to_bool());

  struct Case {
    std::function<void()> action;
    int number;
  };
  const std::vector<Case> cases = {
      {[] { Value("abc").to_number(); }, err::kTypeMismatch},
      {[] { Value("").to_currency(); }, err::kTypeMismatch},
      {[] { Value("31/02/2020").to_date(); }, err::kTypeMismatch},
      {[] { Value("sim").to_bool(); }, err::kTypeMismatch},
      {[] { Value::null().to_number(); }, err::kInvalidUseOfNull},
      {[] { Value::null().to_date(); }, err::kInvalidUseOfNull},
      {[] { Value(1e10).to_date(); }, err::kOverflow},
  };
  for (size_t i = 0; i < cases.size(); ++i) EXPECT_EQ(error_number(cases[i].action), cases[i].number) << "case " << i;
}

TEST(CoreValue, IsNumericAndIsDate) {
  struct Case {
    Value value;
    bool numeric;
    bool date;
  };
  const std::vector<Case> cases = {
      {Value(), true, false},
      {Value::null(), false, false},
      {Value(""), false, false},
      {Value(" 12 "), true, false},
      {Value("-3"), true, false},
      {Value("1e3"), true, false},
      {Value("1.234,56"), true, false},
      {Value("1,2,3"), false, false},
      {Value("abc"), false, false},
      {Value(5.0), true, false},
      {Value(Date::from_ymd(2026, 11, 22)), false, true},
      {Value("31/02/2020"), false, false},
      {Value("29/02/2024"), false, true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(is_numeric(c.value), c.numeric) << "'" << c.value.text() << "'";
    EXPECT_EQ(is_date(c.value), c.date) << "'" << c.value.text() << "'";
  }
}

TEST(CoreValue, DateParts) {
  Date date = Date::from_ymd_hms(2026, 11, 22, 14, 5, 9);
  EXPECT_EQ(date.year(), 2026);
  EXPECT_EQ(date.month(), 11);
  EXPECT_EQ(date.day(), 22);
  EXPECT_EQ(date.hour(), 14);
  EXPECT_EQ(date.minute(), 5);
  EXPECT_EQ(date.second(), 9);
  EXPECT_EQ(date.weekday(), 1);  // a Sunday
  EXPECT_TRUE(date.has_time());
  EXPECT_FALSE(date.date_only().has_time());
  EXPECT_EQ(Date::from_ymd(2026, 11, 22).serial, 46348);

  Date before_day_zero{-1.25};  // 29/12/1899 06:00, the fraction still counts forward
  EXPECT_EQ(before_day_zero.day(), 29);
  EXPECT_EQ(before_day_zero.hour(), 6);

  Date almost_midnight{46348 + 86399.6 / 86400};  // shows as the next day's 00:00:00
  EXPECT_EQ(almost_midnight.day(), 23);
  EXPECT_FALSE(almost_midnight.has_time());
}

TEST(CoreValue, EqualityIsKindAndPayload) {
  EXPECT_EQ(Value(), Value());
  EXPECT_EQ(Value("1"), Value("1"));
  EXPECT_FALSE(Value("1") == Value(1.0));
  EXPECT_FALSE(Value::null() == Value());
  EXPECT_FALSE(Value(money(10000)) == Value(1.0));
}

}  // namespace
}  // namespace mz
