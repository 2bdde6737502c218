#pragma once
// Primeiro, Volta, Avança and Último over the suppliers in code order.
#include "ui/runtime.h"

namespace mz::stock::forne {

// Declares Command9 to Command12.
void add_navigation(ui::Runtime& rt, ui::Form& f);

}  // namespace mz::stock::forne
