#pragma once
// The printed day list: the lines of one day copied into Rela2cx.Mdb and
// laid out by cximpe.rpt.
#include <string>

#include "ui/runtime.h"

namespace mz::finance::cash {

struct DayPrint {
  std::string day;      // the date field's text
  std::string balance;  // the cash balance figure as shown
  std::string name;     // the shop's name on the main screen
};

// Refills the work table with the day's lines.
void fill_day_table(ui::Runtime& rt, const DayPrint& print);

}  // namespace mz::finance::cash
