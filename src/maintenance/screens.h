#pragma once
// The maintenance screens: backup, repair, the phone book, and the customer
// lists, letters and labels.
#include <memory>

#include "ui/runtime.h"

namespace mz::maintenance {

std::unique_ptr<ui::Form> make_auto(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_repara(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_telefone(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_fone(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_impe(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_nas(ui::Runtime& rt);

}  // namespace mz::maintenance
