// PLACEHOLDER: replaced by the screen's implementation.
#include "records/screens.h"
#include "shell/screens.h"

namespace mz::records {

std::unique_ptr<ui::Form> make_c2(ui::Runtime& rt) { return shell::make_unavailable(rt, "c2"); }

}  // namespace mz::records
