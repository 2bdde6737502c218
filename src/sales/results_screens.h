#pragma once
// The screens that work on recorded sales: the exchange of a line, the
// sales search and the results of a period.
#include <memory>

#include "ui/runtime.h"

namespace mz::sales {

std::unique_ptr<ui::Form> make_troca(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_busvenda(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_prod(ui::Runtime& rt);

}  // namespace mz::sales
