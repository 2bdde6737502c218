#pragma once
// The prints of a sale, from what stands on VENDA's screen: the two tickets
// and the booklet of its buttons, and the three formats of vendaimpre.
#include "sales/venda/sale.h"

namespace mz::ui {
class Runtime;
}

namespace mz::sales {

void print_cupom_a(ui::Runtime& rt, const SaleOnScreen& sale);         // "03- Cupom A", page printer
void print_cupom_b(ui::Runtime& rt, const SaleOnScreen& sale);         // "04- Cupom B", raw port
void print_carne(ui::Runtime& rt, const SaleOnScreen& sale);           // "05- Carnê" / "03- Carnê parcelas"
void print_a4(ui::Runtime& rt, const SaleOnScreen& sale);              // "01- Formato A4"
void print_cupom_format(ui::Runtime& rt, const SaleOnScreen& sale);    // "02- Formato Cupom"

}  // namespace mz::sales
