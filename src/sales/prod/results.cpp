#include "sales/prod/results.h"

#include "core/format.h"
#include "core/text.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "store/unit.h"
#include "ui/fields.h"

namespace mz::sales::prod {

namespace {

store::Database sales() { return store::Workspace::open_database("\\VENDA.MDB"); }

// Quantity × unit price, the price kept as text on the line.
Currency line_value(const Value& quantity, const Value& price) { return amount_of(quantity) * amount_of(price); }

}  // namespace

Rows line_rows(const Period& p) {
  Rows rows;
  store::Database db = sales();
  for (store::Recordset rs = db.open_recordset("SELECT QTDA, V3, CODIGO, V1, DATA, NOME, VENDEDOR, PAGAMENTO from "
                                               "VENDA WHERE " + p.between() + " ORDER BY DATA, CODIGO");
       !rs.eof(); rs.move_next())
    rows.push_back({money(line_value(rs[0], rs[1])), rs[2].text(), rs[3].text(), store::data_tela(rs[4]), rs[5].text(),
                    rs[6].text(), rs[7].text()});
  return rows;
}

Costs::Costs() {
  store::Database db = store::Workspace::open_database("\\REFE.Mdb");
  // The first card of a code is the one a search by GR would meet.
  for (store::Recordset rs = db.open_recordset("SELECT GR, E7 FROM GRUPO"); !rs.eof(); rs.move_next())
    cost_.emplace(ucase(rs[0].text()), amount_of(rs[1]));
}

Currency Costs::of(const std::string& reference) const {
  auto it = cost_.find(ucase(reference));
  return it == cost_.end() ? Currency{} : it->second;
}

ProductTotals product_totals(const Period& p, const Costs& costs, const std::string* reference) {
  std::string group = "V1, V3, REFERENCIA, V2";
  std::string sql = "SELECT SUM(QTDA), " + group + (reference ? ", CODIGO" : "") + " FROM VENDA WHERE " + p.between();
  if (reference) {
    sql += " AND (VENDA.REFERENCIA Like " + store::sql_quote(*reference) + ")";
    group += ", CODIGO";
  }
  sql += " GROUP BY " + group + " ORDER BY " + group;
  ProductTotals totals;
  store::Database db = sales();
  for (store::Recordset rs = db.open_recordset(sql); !rs.eof(); rs.move_next()) {
    const Currency quantity = amount_of(rs[0]), price = amount_of(rs[2]);
    const Currency cost = costs.of(rs[3].text());
    totals.cost = totals.cost + cost * quantity;
    totals.sales = totals.sales + price * quantity;
    totals.rows.push_back({rs[0].text(), rs[3].text(), rs[1].text(), rs[4].text(), ui::money_text(rs[2]), money(cost),
                           money(price * quantity), reference ? "Nr. Venda: " + rs[5].text() : ""});
  }
  return totals;
}

Rows ranking(const Period& p) {
  {
    // The work table is refilled whole, with no question between.
    store::Unit unit({"\\TMPK.MDB"});
    store::Database tmp = unit.database("\\TMPK.MDB");
    tmp.execute("DELETE FROM tmp;");
    store::Recordset out = tmp.open_recordset("SELECT A1, A2, A3 FROM tmp");
    store::Database db = sales();
    // One row per reference: its lines at every price and size summed, the
    // description of the first.
    for (store::Recordset rs = db.open_recordset("SELECT SUM(QTDA), REFERENCIA, MIN(V1) FROM VENDA WHERE " +
                                                 p.between() + " GROUP BY REFERENCIA ORDER BY REFERENCIA");
         !rs.eof(); rs.move_next()) {
      out.add_new();
      // Text padded to 5 digits gives the order: 100000 or more sorts low.
      out["A1"] = Value(format(rs[0].value(), "00000"));
      out["A2"] = rs[1].value();
      out["A3"] = rs[2].value();
      out.update();
    }
    out.close();
    unit.commit();
  }
  Rows rows;
  store::Database tmp = store::Workspace::open_database("\\TMPK.MDB");
  for (store::Recordset rs = tmp.open_recordset("SELECT A1, A2, A3 FROM TMP ORDER BY A1 DESC, A2"); !rs.eof();
       rs.move_next())
    rows.push_back({rs[0].text(), rs[1].text(), rs[2].text()});
  return rows;
}

Currency charged_total(const Period& p) {
  Currency total;
  for (const SaleRow& s : period_sales(p)) total = total + amount_of(s.total);
  return total;
}

}  // namespace mz::sales::prod
