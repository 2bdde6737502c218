#pragma once
// What the account searches share: the period with its open ends written in,
// the six orders, the list cells and totals, and the way into bxx.
#include <string>
#include <vector>

#include "core/value.h"
#include "store/database.h"
#include "ui/runtime.h"

namespace mz::finance::searches {

// The orders of the lists, as their combos offer them.
extern const std::vector<std::string> kOrders;
// The column an order sorts by; the due date when none is chosen.
std::string order_column(const std::string& order);

// A bound of the period: an invalid or blank date becomes `sentinel`, which
// the field then shows. The date literal of the bound, month first.
std::string period_bound(ui::Runtime& rt, ui::Control& field, const char* sentinel);
// "D3 between #...# and #...#" over the two bounds.
std::string due_between(ui::Runtime& rt, ui::Control& from, ui::Control& to, const char* first, const char* last);

// "BX = ..." that leaves the choice of index to the other conditions: open
// and settled split the table in halves, while a period or a name picks few.
std::string status_is(const char* bx);
// "BX = ... AND D1 = ...": beside a period of due dates, the index on
// (BX, D1, D3, CODIGO) finds exactly the rows, already in the list's order.
std::string status_and_kind(const char* bx, const std::string& kind);

store::Database accounts();
// The columns of CADA that the lists show, and with them the ones each
// screen adds: reading only these keeps a long list quick.
inline constexpr const char* kListColumns = "D1, D3, D4, D5, D6, D7, D9, CODIGO, PG, VP";
// Rows of CADA that pass `where`, by `order` and then by control number, so
// that accounts due on the same day keep one order.
store::Recordset select_accounts(store::Database& db, const std::string& where, const std::string& order);

// An amount as the lists show it, "###,###.00"; nothing for no amount.
std::string list_amount(const Value& amount);
// A running total: an amount that is not a number adds nothing.
void add_to(Currency& total, const Value& amount);
// A total as the figures show it, "###,##0.00".
std::string total_text(Currency total);

// Opens bxx on the account of that control number, shaped "000000".
void open_account(ui::Runtime& rt, const std::string& control);

}  // namespace mz::finance::searches
