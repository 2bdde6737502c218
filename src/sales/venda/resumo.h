#pragma once
// "04- Resumo": the list of Grid4 printed through the work table ver.
#include "ui/runtime.h"

namespace mz::sales::venda {

void print_resumo(ui::Runtime& rt, ui::Form& f);

}  // namespace mz::sales::venda
