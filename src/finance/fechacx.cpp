// FECHACX: the money taken out of the drawer; CAIXA opens it with the cash
// balance already in, so that confirming at once empties the drawer.
#include "finance/caixa/drawer.h"
#include "finance/screens.h"

namespace mz::finance {

std::unique_ptr<ui::Form> make_fechacx(ui::Runtime& rt) { return cash::make_drawer(rt, cash::kClosing); }

}  // namespace mz::finance
