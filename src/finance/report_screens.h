#pragma once
// The printed account reports reached from the Relatórios menu of Contas:
// the choice of report (Impecon), then its period (IMPECON2) or its
// customer and period (IMPECON4).
#include <memory>

#include "ui/runtime.h"

namespace mz::finance {

std::unique_ptr<ui::Form> make_impecon(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_impecon2(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_impecon4(ui::Runtime& rt);

}  // namespace mz::finance
