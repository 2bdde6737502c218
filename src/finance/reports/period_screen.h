#pragma once
// IMPECON2 and IMPECON4: the period (and, on IMPECON4, the customer) of the
// report whose title Impecon wrote into TT, and its printing.
#include <memory>

#include "ui/runtime.h"

namespace mz::finance::reports {

enum class ByCustomer { No, Yes };

std::unique_ptr<ui::Form> make_period_screen(ui::Runtime& rt, const char* name, ByCustomer by_customer);

}  // namespace mz::finance::reports
