#pragma once
// The finance screens: the cash book and the drawer, payables and
// receivables, their settlement and their searches.
#include <memory>

#include "ui/runtime.h"

namespace mz::finance {

std::unique_ptr<ui::Form> make_caixa(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_buscaixa(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_abrecx(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_fechacx(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_contas(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_bxx(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_buscon(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_conbx(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_conclie(ui::Runtime& rt);

}  // namespace mz::finance
