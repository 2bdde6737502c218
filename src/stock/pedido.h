#pragma once
// PEDIDO: commercial orders, kept in the goods-out ledger beside the exits.
#include <memory>

#include "ui/runtime.h"

namespace mz::stock {

std::unique_ptr<ui::Form> make_pedido(ui::Runtime& rt);

}  // namespace mz::stock
