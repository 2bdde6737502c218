#pragma once
// R22V.rpt: the products each seller sold in the period, with cost and
// result, through the work table Rela14.
#include "sales/prod/results.h"

namespace mz::sales::prod {

// Asks whether to preview, refills Rela14 and prints.
void print_seller_report(ui::Runtime& rt, const Period& p, const Costs& costs);

}  // namespace mz::sales::prod
