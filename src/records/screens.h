#pragma once
// The master-record screens: products, customers, employees and the option
// lists of the accounts screen.
#include <memory>

#include "ui/runtime.h"

namespace mz::records {

std::unique_ptr<ui::Form> make_produto(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_frmimg(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_cadastro(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_salacad(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_c2(ui::Runtime& rt);

}  // namespace mz::records
