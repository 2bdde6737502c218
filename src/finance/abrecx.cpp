// ABRECX: the money put into the drawer at the start of the day.
#include "finance/caixa/drawer.h"
#include "finance/screens.h"

namespace mz::finance {

std::unique_ptr<ui::Form> make_abrecx(ui::Runtime& rt) { return cash::make_drawer(rt, cash::kOpening); }

}  // namespace mz::finance
