// Date and its day arithmetic (Date members, date_add_days, date_diff_days).
#include <cmath>

#include "core/calendar.h"
#include "core/error.h"
#include "core/regional.h"
#include "core/value.h"

namespace mz {
namespace calendar {
namespace {

constexpr int kSecondsPerDay = 86400;
// Days from 01/01/1970 back to day zero.
constexpr int64_t kDayZeroOffset = 25569;
constexpr double kFirstSerial = -657434;  // 01/01/100
constexpr double kLastSerial = 2958466;   // 01/01/10000

// Days since 01/01/1970 in the proleptic Gregorian calendar (H. Hinnant's algorithm).
int64_t days_from_civil(int64_t y, unsigned m, unsigned d) {
  y -= m <= 2;
  const int64_t era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m > 2 ? m - 3 : m + 9) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<int64_t>(doe) - 719468;
}

}  // namespace

int64_t day_number(int year, int month, int day) {
  return days_from_civil(year, static_cast<unsigned>(month), static_cast<unsigned>(day)) + kDayZeroOffset;
}

Ymd civil(int64_t day_number) {
  int64_t z = day_number - kDayZeroOffset + 719468;
  const int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const unsigned doe = static_cast<unsigned>(z - era * 146097);
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const unsigned mp = (5 * doy + 2) / 153;
  const unsigned d = doy - (153 * mp + 2) / 5 + 1;
  const unsigned m = mp < 10 ? mp + 3 : mp - 9;
  const int64_t y = static_cast<int64_t>(yoe) + era * 400 + (m <= 2);
  return {static_cast<int>(y), static_cast<int>(m), static_cast<int>(d)};
}

DayTime split(Date date) {
  if (!in_range(date.serial)) throw Error(err::kOverflow, "Overflow");
  double whole = std::trunc(date.serial);
  auto day = static_cast<int64_t>(whole);
  auto second = static_cast<int>(std::llround(std::fabs(date.serial - whole) * kSecondsPerDay));
  if (second >= kSecondsPerDay) {
    second -= kSecondsPerDay;
    ++day;  // later in the day is forward on both sides of day zero
  }
  return {day, second};
}

Date join(int64_t day, int second) {
  double fraction = static_cast<double>(second) / kSecondsPerDay;
  auto whole = static_cast<double>(day);
  return Date{day >= 0 ? whole + fraction : whole - fraction};
}

bool in_range(double serial) { return serial >= kFirstSerial && serial < kLastSerial; }

}  // namespace calendar

bool is_valid_ymd(int year, int month, int day) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1) return false;
  bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return day <= kDays[month - 1] + (month == 2 && leap ? 1 : 0);
}

Date Date::from_ymd(int year, int month, int day) {
  return Date{static_cast<double>(calendar::day_number(year, month, day))};
}

Date Date::from_ymd_hms(int year, int month, int day, int hour, int minute, int second) {
  return calendar::join(calendar::day_number(year, month, day), (hour * 60 + minute) * 60 + second);
}

int Date::year() const { return calendar::civil(calendar::split(*this).day).year; }
int Date::month() const { return calendar::civil(calendar::split(*this).day).month; }
int Date::day() const { return calendar::civil(calendar::split(*this).day).day; }
int Date::hour() const { return calendar::split(*this).second / 3600; }
int Date::minute() const { return calendar::split(*this).second / 60 % 60; }
int Date::second() const { return calendar::split(*this).second % 60; }

int Date::weekday() const {
  int64_t day = calendar::split(*this).day;
  // Day zero was a Saturday.
  return static_cast<int>(((day % 7 + 7) % 7 + 6) % 7) + 1;
}

Date Date::date_only() const { return calendar::join(calendar::split(*this).day, 0); }
bool Date::has_time() const { return calendar::split(*this).second != 0; }

Date date_add_days(Date date, int days) {
  calendar::DayTime parts = calendar::split(date);
  return calendar::join(parts.day + days, parts.second);
}

long date_diff_days(Date from, Date to) {
  return static_cast<long>(calendar::split(to).day - calendar::split(from).day);
}

}  // namespace mz
