// PLACEHOLDER: replaced by the screen's implementation.
#include "records/screens.h"
#include "shell/screens.h"

namespace mz::records {

std::unique_ptr<ui::Form> make_produto(ui::Runtime& rt) { return shell::make_unavailable(rt, "produto"); }

}  // namespace mz::records
