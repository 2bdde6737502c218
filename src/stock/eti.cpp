// PLACEHOLDER: replaced by the screen's implementation.
#include "stock/screens.h"
#include "shell/screens.h"

namespace mz::stock {

std::unique_ptr<ui::Form> make_eti(ui::Runtime& rt) { return shell::make_unavailable(rt, "ETI"); }

}  // namespace mz::stock
