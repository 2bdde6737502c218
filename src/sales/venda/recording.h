#pragma once
// "01- Grava venda": the screen's checks, then the sale posted in one unit.
#include "ui/runtime.h"

namespace mz::sales::venda {

void record_sale(ui::Runtime& rt, ui::Form& f);

}  // namespace mz::sales::venda
