#pragma once
// The procedures that erase whole files are the owner's: they ask first for
// the main password of the password table.
#include <functional>
#include <string>

#include "ui/runtime.h"

namespace mz::finance::cash {

// Asks for the main password; with it typed as stored, asks `question` and
// on Yes runs `erase`. A wrong password shows "Acesso não autorizado.".
void owner_erase(ui::Runtime& rt, const std::string& question, const std::function<void()>& erase);

}  // namespace mz::finance::cash
