#include "sales/venda/customer.h"

#include "store/database.h"
#include "store/sql_text.h"

namespace mz::sales::venda {

std::optional<CustomerCard> find_customer(const std::string& name) {
  store::Database db = store::Workspace::open_database("\\Cada.Mdb");
  store::Recordset rs = db.open_recordset("SELECT a4, a23, a24, D16 FROM CADA where A1 = " + store::sql_quote(name));
  if (rs.eof()) return std::nullopt;
  CustomerCard card;
  card.phone = rs["a4"].text();
  card.document = rs["a24"].text();
  if (card.document.empty()) card.document = rs["a23"].text();
  card.blocked = rs["D16"].text() == "SIM";
  return card;
}

// One indexed sum over the customer's rows instead of a walk adding each.
Currency customer_debt(const std::string& name) {
  store::Database db = store::Workspace::open_database("\\Contas.Mdb");
  store::Recordset rs = db.open_recordset("SELECT sum(D5) FROM CADA where D9 = " + store::sql_quote(name) +
                                          " AND BX = 'A' AND D1 = 'Receber'");
  Value sum = rs[0].value();
  return sum.is_null() ? Currency{} : sum.to_currency();
}

}  // namespace mz::sales::venda
