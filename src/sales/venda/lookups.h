#pragma once
// The two small screens the items tab opens: the search by name, which puts
// a code into GR, and the product's picture.
#include <memory>

#include "ui/runtime.h"

namespace mz::sales::venda {

std::unique_ptr<ui::Form> make_bnome(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_fotos(ui::Runtime& rt);

}  // namespace mz::sales::venda
