#pragma once
// PSEST: the sale screen's stock pop-up.
#include <array>
#include <string>

#include "stock/balance.h"
#include "ui/runtime.h"

namespace mz::stock {

// Shows PSEST with one line per size the product opens (its An is "SIM"):
// the caption the sale screen gives the slot and the slot's balance, zero
// balances too. Nothing happens for an empty reference.
void show_psest(ui::Runtime& rt, const std::string& reference, const std::array<std::string, kSlots>& captions);

}  // namespace mz::stock
