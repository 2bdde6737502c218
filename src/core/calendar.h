#pragma once
// Day numbers and times of day behind Date, shared by parsing and formatting.
#include <cstdint>

#include "core/value.h"

namespace mz::calendar {

// Day 0 is 30/12/1899, the old runtime's day zero.
int64_t day_number(int year, int month, int day);

struct Ymd {
  int year, month, day;
};
Ymd civil(int64_t day_number);

// A date as its whole day and the second of that day, rounded to the second
// as the old runtime shows times. Before day zero the fraction still counts
// forward from midnight, so -1,25 is 29/12/1899 06:00. A serial outside
// in_range() is Error 6.
struct DayTime {
  int64_t day;
  int second;  // 0 .. 86399
};
DayTime split(Date date);
Date join(int64_t day, int second);

// The span of days the old runtime's dates may take: 01/01/100 to 31/12/9999.
bool in_range(double serial);

}  // namespace mz::calendar
