#pragma once
// The stocktake and the adjustment of recorded entries, both reached from
// ENTRADA.
#include <memory>

#include "ui/runtime.h"

namespace mz::stock {

// balanco, "Balanço de estoque": scanned codes counted against the stock on
// record, kept in bala until deleted; it posts nothing.
std::unique_ptr<ui::Form> make_balanco(ui::Runtime& rt);
// deve, ACERTOS: the entries of ENTRA.MDB of one supplier and reference,
// overtyped in place.
std::unique_ptr<ui::Form> make_deve(ui::Runtime& rt);

}  // namespace mz::stock
