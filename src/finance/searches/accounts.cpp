#include "finance/searches/accounts.h"

#include "finance/searches/open_accounts.h"
#include "finance/settlement.h"

#include "core/format.h"
#include "store/sql_text.h"

namespace mz::finance::searches {

const std::vector<std::string> kOrders = {"VENCIMENTO", "Nº DOC", "VALOR", "TIPO", "CLIENTE", "HISTÓRICO"};

std::string order_column(const std::string& order) {
  static const char* const kColumns[] = {"D3", "D4", "D5", "D7", "D9", "D6"};
  for (size_t i = 0; i < kOrders.size(); ++i)
    if (kOrders[i] == order) return kColumns[i];
  return "D3";
}

std::string period_bound(ui::Runtime& rt, ui::Control& field, const char* sentinel) {
  if (!is_date(Value(format(Value(field.text()), "##/##/####")))) field.set_text(sentinel);
  return store::data_sql(field.text(), rt.host().today());
}

std::string due_between(ui::Runtime& rt, ui::Control& from, ui::Control& to, const char* first, const char* last) {
  std::string d1 = period_bound(rt, from, first);
  std::string d2 = period_bound(rt, to, last);
  return "D3 between #" + d1 + "# and #" + d2 + "#";
}

std::string status_is(const char* bx) { return "+BX = " + store::sql_quote(bx); }

std::string status_and_kind(const char* bx, const std::string& kind) {
  return "BX = " + store::sql_quote(bx) + " AND D1 = " + store::sql_quote(kind);
}

store::Database accounts() { return store::Workspace::open_database("\\Contas.Mdb"); }

store::Recordset select_accounts(store::Database& db, const std::string& where, const std::string& order) {
  return db.open_recordset(std::string("SELECT ") + kListColumns + " FROM Cada WHERE " + where + " ORDER BY " + order +
                           ", CODIGO");
}

std::string list_amount(const Value& amount) {
  return amount.is_null() || amount.is_empty() ? std::string() : format(amount, "###,###.00");
}

void add_to(Currency& total, const Value& amount) {
  if (is_numeric(amount) && !amount.is_empty()) total = total + amount.to_currency();
}

std::string total_text(Currency total) { return format(Value(total), "###,##0.00"); }

// A change made on bxx rebuilds the open accounts' list, when it is on screen.
void open_account(ui::Runtime& rt, const std::string& control) {
  open_settlement(rt, format(Value(control), "000000"), [&rt] {
    if (rt.is_shown("BUSCON")) relist_open_accounts(rt);
  });
}

}  // namespace mz::finance::searches
