#pragma once
// The list of open accounts on BUSCON, which bxx rebuilds after each of its
// commands, always in order of due date, over the range and kind shown.
#include "ui/runtime.h"

namespace mz::finance {

void relist_open_accounts(ui::Runtime& rt);

}  // namespace mz::finance
