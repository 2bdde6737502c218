#pragma once
// Barcode labels: the generation that F4 runs on the movement screens, which
// fills BARRA with one row a piece, then hands over to ETI.
#include <string>
#include <string_view>

#include "ui/runtime.h"

namespace mz::stock {

// F4: the movement of `number` as recorded in `ledger_file` ("\ENTRA.MDB" on
// ENTRADA, "\SAI.MDB" on PEDIDO), its pieces read from the movement grid
// (the grid's column layout is that of the movement band).
void generate_labels(ui::Runtime& rt, std::string_view ledger_file, const std::string& number, const ui::Control& grid);

}  // namespace mz::stock
