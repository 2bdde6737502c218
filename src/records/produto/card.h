#pragma once
// The reference card of PRODUTO: the fields that edit a row of GRUPO in
// REFE.MDB, and the blank card a new reference starts from.
#include <string>

#include "store/database.h"
#include "ui/runtime.h"

namespace mz::records::produto {

inline constexpr int kSlots = 50;
std::string slot_field(int n);  // "AX7": says whether the reference exists in slot 7

store::Database references();
// SELECT* FROM GRUPO where GR = '...'
store::Recordset reference_row(store::Database& db, const std::string& code);

// Every column with a field goes into it, the slots into AX1..AX50.
void show_reference(ui::Form& f, store::Recordset& rs);
// Grava's assignments, in its order; the date through "00/00/0000".
void write_reference(store::Recordset& rs, const ui::Form& f);

// The values a blank card starts with: E5 "0", the money fields "0,00",
// E6 today, the next free code in GR and no slot in use.
void blank_card(ui::Runtime& rt, ui::Form& f);

// Leaving a margin field: price = base + base x margin / 100, in currency
// arithmetic, shown as the plain number ("80,865").
void apply_margin(ui::Form& f, const char* base, const char* margin, const char* price);

}  // namespace mz::records::produto
