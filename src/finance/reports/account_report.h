#pragma once
// Running an account report: Rela3 emptied and refilled with the accounts
// of the variant and the period, then the template over it, previewed or
// printed as the user answers.
#include <memory>
#include <string>

#include "finance/reports/variants.h"
#include "ui/report.h"
#include "ui/runtime.h"

namespace mz::finance::reports {

struct Period {
  std::string from, to;  // "dd/mm/yyyy", as the fields show them
};

// Rows of CADA that the variant selects in the period (and of one
// customer when `customer` is given), into Rela3 in the order of D3.
void fill_rela3(const Variant& v, const Period& period, const std::string* customer);

using ui::ReportPair;

// Asks for preview or printer and runs the template over Rela3; a failure
// of the print is reported and leaves the screen as it is.
void print_rela3(ui::Runtime& rt, ReportPair& reports, const Variant& v);

}  // namespace mz::finance::reports
