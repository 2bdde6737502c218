#pragma once
// The second tab of Contas, "02- Comissões": the sales of a period by
// payment form and by seller with each seller's commission ("VER"), and the
// commission report printed from that list.
#include "ui/runtime.h"

namespace mz::finance::contas {

inline constexpr int kCommissionsPage = 1;

// K1, K2, Command1, Grid2 and Grid3 on the second page.
void add_commissions_tab(ui::Runtime& rt, ui::Form& f);
// Both dates start with today.
void start_commissions(ui::Runtime& rt, ui::Form& f);

// Command1 "VER".
void show_sales(ui::Runtime& rt, ui::Form& f);
// FFDD "Relatório de comissão": Grid3 into TMP2 and the report over it.
void print_commissions(ui::Runtime& rt, ui::Form& f);

}  // namespace mz::finance::contas
