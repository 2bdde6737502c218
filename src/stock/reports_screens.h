#pragma once
// The stock report screens: the stock of a group by size, and the print
// menu of the product register.
#include <memory>

#include "ui/runtime.h"

namespace mz::stock {

std::unique_ptr<ui::Form> make_grupos(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_imperefe(ui::Runtime& rt);

}  // namespace mz::stock
