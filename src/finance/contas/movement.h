#pragma once
// The day's settled movement of Contas: Grid1 with its credit, debit and
// balance figures, and Apaga of the row picked there by a double click.
#include <optional>
#include <string>

#include "core/value.h"
#include "store/database.h"
#include "ui/runtime.h"

namespace mz::finance::contas {

store::Database accounts();  // Contas.Mdb

// Grid1, D11, D11X and SL from the settled rows of the day: credits dated
// `credits_day` (none when absent), debits dated `debits_day`.
void show_movement(ui::Form& f, std::optional<Date> credits_day, Date debits_day);
// The movement of today, as on opening and after each inclusion.
void show_day(ui::Runtime& rt, ui::Form& f);

// One account as a row of Grid1, its amount added to D11, as an inclusion
// due today shows it before the movement is rebuilt.
void add_to_day(ui::Form& f, store::Recordset& rs);

// A double click copies the row's control number into nc.
void pick_row(ui::Form& f);
// fgfg: deletes the account picked on Grid1, then clears the screen.
void remove_picked(ui::Runtime& rt, ui::Form& f);

}  // namespace mz::finance::contas
