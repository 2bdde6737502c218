// PLACEHOLDER: replaced by the screen's implementation.
#include "finance/screens.h"
#include "shell/screens.h"

namespace mz::finance {

std::unique_ptr<ui::Form> make_contas(ui::Runtime& rt) { return shell::make_unavailable(rt, "Contas"); }

}  // namespace mz::finance
