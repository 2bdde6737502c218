// Date patterns of Format: "dd/mm/yyyy", "mmmm", "HH:MM", ...
#include <cstdio>

#include "core/calendar.h"
#include "core/error.h"
#include "core/format_patterns.h"
#include "core/regional.h"
#include "core/text.h"

namespace mz {
namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

std::string number(int n, size_t width) {
  char buffer[16];
  std::snprintf(buffer, sizeof buffer, "%0*d", static_cast<int>(width), n);
  return buffer;
}

[[noreturn]] void unsupported() {
  throw Error(err::kInvalidProcedureCall, "Invalid procedure call or argument");
}

}  // namespace

bool is_date_pattern(std::string_view pattern) {
  for (char c : pattern) {
    switch (lower(c)) {
      case 'd': case 'm': case 'y': case 'h': case 'n': case 's': return true;
      default: break;
    }
  }
  return false;
}

std::string format_date(Date date, std::string_view pattern) {
  calendar::DayTime parts = calendar::split(date);
  calendar::Ymd ymd = calendar::civil(parts.day);
  int hour = parts.second / 3600, minute = parts.second / 60 % 60, second = parts.second % 60;

  bool after_hour = false;  // "m" right after an hour means minutes, once
  bool minutes_written = false;
  std::string out;
  for (size_t i = 0; i < pattern.size();) {
    char letter = lower(pattern[i]);
    size_t run = 1;
    while (i + run < pattern.size() && lower(pattern[i + run]) == letter) ++run;
    switch (letter) {
      case 'd':
        if (run > 2) unsupported();
        out += number(ymd.day, run);
        after_hour = false;
        break;
      case 'm':
        if (run <= 2 && after_hour && !minutes_written) {
          out += number(minute, run);
          minutes_written = true;
        } else if (run <= 2) {
          out += number(ymd.month, run);
        } else {
          std::string name = month_name(ymd.month);
          out += run == 3 ? left(name, 3) : name;
        }
        break;
      case 'y':
        if (run == 2) out += number(ymd.year % 100, 2);
        else if (run == 4) out += number(ymd.year, 4);
        else unsupported();
        break;
      case 'h':
        if (run > 2) unsupported();
        out += number(hour, run);
        after_hour = true;
        break;
      case 'n':
        if (run > 2) unsupported();
        out += number(minute, run);
        break;
      case 's':
        if (run > 2) unsupported();
        out += number(second, run);
        break;
      default:
        out.append(pattern.substr(i, run));
        break;
    }
    i += run;
  }
  return out;
}

}  // namespace mz
