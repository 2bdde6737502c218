#pragma once
// VENDA's history tab: every line bought by the customer of the closing tab.
#include "ui/runtime.h"

namespace mz::sales::venda {

inline constexpr int kHistoryPage = 3;

void add_history_tab(ui::Runtime& rt, ui::Form& f);
// Grid11 back to its heading, at the screen's load.
void load_history(ui::Form& f);

}  // namespace mz::sales::venda
