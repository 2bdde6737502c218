#pragma once
// The add-and-delete screen of the accounts' option lists.
#include <string>

#include "ui/runtime.h"

namespace mz::records {

// Shows c2 on the list its title names ("CADASTRO DE TIPO",
// "CADASTRO DE HISTÓRICOS"), as the accounts screen's pictures do.
void show_option_screen(ui::Runtime& rt, const std::string& title);

}  // namespace mz::records
