// PLACEHOLDER: replaced by the screen's implementation.
#include "finance/screens.h"
#include "shell/screens.h"

namespace mz::finance {

std::unique_ptr<ui::Form> make_buscaixa(ui::Runtime& rt) { return shell::make_unavailable(rt, "BUSCAIXA"); }

}  // namespace mz::finance
