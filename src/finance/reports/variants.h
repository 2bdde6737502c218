#pragma once
// The account reports: which accounts each title and order selects, the
// date tested against the period, the heading written into the rows and
// the template that lays them out.
#include <string>
#include <string_view>

namespace mz::finance::reports {

struct Variant {
  const char* title;        // TT, as Impecon writes it
  const char* option;       // T1 .. T4 on IMPECON2; "" on the reports by customer
  const char* date_column;  // the column of CADA tested against the period
  const char* operation;    // D1
  const char* status;       // BX
  const char* rela;         // RELA of every row
  const char* report_file;
};

// The report of a title under the order chosen (ignored by the reports by
// customer); nullptr when the title has none for that order. A title by
// plan of accounts prints as the account report it names.
const Variant* find_variant(std::string_view title, std::string_view option);

// Impecon's choice: the title its text stands for and the screen that asks
// for the period; empty when the text is none of the reports.
struct Choice {
  std::string title;
  const char* screen = nullptr;
};
Choice choice_of(std::string_view text);

// The texts of Impecon's list, in order.
extern const char* const kListed[8];

}  // namespace mz::finance::reports
