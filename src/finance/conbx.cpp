// PLACEHOLDER: replaced by the screen's implementation.
#include "finance/screens.h"
#include "shell/screens.h"

namespace mz::finance {

std::unique_ptr<ui::Form> make_conbx(ui::Runtime& rt) { return shell::make_unavailable(rt, "CONBX"); }

}  // namespace mz::finance
