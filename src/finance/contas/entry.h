#pragma once
// The entry tab of Contas: its fields with their help lines, recalling an
// account by its number, the plan of accounts, and the three actions that
// fill or write the fields (Novo, Grava, Relança).
#include "ui/runtime.h"

namespace mz::finance::contas {

// Declares the entry fields in their order of entry, with their captions,
// behaviours and help lines in BARRA.
void add_entry(ui::Form& f);
// The lists of D6, D7 and D9 from their files.
void load_lists(ui::Form& f);
// The fields as the screen opens.
void start_entry(ui::Runtime& rt, ui::Form& f);

// asasss: the fields blank for a new account, the focus on D1.
void clear_entry(ui::Runtime& rt, ui::Form& f);
// sds: writes the account on the fields under a new control number.
void record(ui::Runtime& rt, ui::Form& f);
// dfdf: the last account included, due a month later, on the fields.
void reissue_last(ui::Runtime& rt, ui::Form& f);

}  // namespace mz::finance::contas
