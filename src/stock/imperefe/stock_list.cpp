#include "stock/imperefe/stock_list.h"

#include "stock/balance.h"
#include "store/database.h"

namespace mz::stock::imperefe {
namespace {

// The cost as the stock value takes it; a cost that is no amount values the
// stock at nothing rather than stopping the list.
double cost(const Value& e7) { return is_numeric(e7) ? e7.to_currency().to_double() : 0; }

// A minimum that is no number (a null, an empty text) asks for nothing.
bool below_minimum(double balance, const Value& e5) { return is_numeric(e5) && balance < e5.to_number(); }

}  // namespace

void write_stock_list(StockList list, const std::function<void(int)>& counted) {
  // Every balance at once: one grouped statement per ledger.
  const auto balances = all_reference_balances();
  store::Recordset products =
      store::Workspace::open_database("\\REFE.Mdb").open_recordset("SELECT* FROM GRUPO ORDER BY GR");
  store::Database imesto = store::Workspace::open_database("\\IMESTO.Mdb");
  store::Database::Transaction unit(imesto);
  imesto.execute("delete From A1;");
  store::Recordset rows = imesto.open_recordset("SELECT* FROM A1 ORDER BY GR");
  int written = 0;
  for (; !products.eof(); products.move_next()) {
    auto found = balances.find(products["GR"].text());
    const double balance = found == balances.end() ? 0.0 : found->second;
    const Value minimum = products["E5"];
    if (list == StockList::Purchases && !below_minimum(balance, minimum)) continue;
    rows.add_new();
    for (const char* column : {"GR", "E2", "E3", "E7", "E1"}) rows[column] = products[column].value();
    rows["QTDA"] = Value(balance);
    // A negative balance gives a negative value, which lowers the totals.
    rows["RESU"] = list == StockList::Valued ? Value(cost(products["E7"]) * balance) : Value(minimum.text());
    rows.update();
    counted(++written);
  }
  unit.commit();
}

}  // namespace mz::stock::imperefe
