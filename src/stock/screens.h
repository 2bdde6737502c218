#pragma once
// The stock and purchasing screens.
#include <memory>

#include "ui/runtime.h"

namespace mz::stock {

std::unique_ptr<ui::Form> make_forne(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_fornecod(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_entrada(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_consulta(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_psest(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_eti(ui::Runtime& rt);

}  // namespace mz::stock
