#pragma once
// "01- Grava venda": the sale across VENDA.MDB, VENDA1.MDB, Contas.Mdb and
// Caixa.Mdb, written as one unit.
#include <string>

#include "core/value.h"
#include "sales/venda/sale.h"

namespace mz::sales {

// Takes the next sale number and writes every row of the sale, all or
// nothing; returns the number. The screen has made its checks and set c1.
std::string post_sale(const SaleOnScreen& sale, const Date& today);

}  // namespace mz::sales
