#pragma once
// The supplier card of FORNE: its fields, how a row of FORNEX fills them and
// how they are written back, the CNPJ/CPF box, and the blank card.
#include <functional>
#include <string>

#include "store/database.h"
#include "ui/runtime.h"

namespace mz::stock::forne {

// The screen's tab pages, in the order of SSTab1's titles.
enum Page { kCardPage = 0, kListPage = 1, kContactsPage = 2 };

store::Database suppliers();  // FORNEX.MDB


// Declares the card's captions and fields in their order of entry, on the
// card's page, and gives them their behaviours.
void add_card(ui::Runtime& rt, ui::Form& f);

// The supplier of the recordset's current row on the card's fields.
void show_supplier(ui::Form& f, store::Recordset& rs);
// The same, and its contacts in Grid1.
void load_card(ui::Form& f, store::Recordset& rs);
// The row of that code, "SELECT * FROM cli WHERE a1 = ...".
store::Recordset supplier_row(store::Database& db, const std::string& code);
// Keeps the card: a new supplier takes the next code into A1, an existing
// one is rewritten. Each statement that fails is passed over.
void record_card(ui::Form& f);

// Opening and c2: a blank card dated today, the names and the list refilled,
// the count of suppliers in `nr`, the focus on A2.
void clear_card(ui::Runtime& rt, ui::Form& f);

}  // namespace mz::stock::forne
