#pragma once
// The sales screens.
#include <memory>

#include "ui/runtime.h"

namespace mz::sales {

std::unique_ptr<ui::Form> make_venda(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_vendaimpre(ui::Runtime& rt);

}  // namespace mz::sales
