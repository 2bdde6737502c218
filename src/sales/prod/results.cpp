#include "sales/prod/results.h"

#include "core/format.h"
#include "sales/prod/groups.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "store/unit.h"
#include "ui/fields.h"

namespace mz::sales::prod {

std::vector<Line> period_lines(const Period& p, const std::string* reference) {
  std::string sql = "SELECT QTDA, V3, CODIGO, V1, DATA, NOME, VENDEDOR, PAGAMENTO, VALOR, REFERENCIA, V2 from VENDA "
                    "WHERE " + p.between();
  if (reference) sql += " AND (VENDA.REFERENCIA Like " + store::sql_quote(*reference) + ")";
  std::vector<Line> lines;
  store::Database db = store::Workspace::open_database("\\VENDA.MDB");
  for (store::Recordset rs = db.open_recordset(sql + " ORDER BY DATA"); !rs.eof(); rs.move_next())
    lines.push_back({rs[0], rs[1], rs[2], rs[3], rs[4], rs[5], rs[6], rs[7], rs[8], rs[9], rs[10]});
  return lines;
}

Rows line_rows(const std::vector<Line>& lines) {
  Rows rows;
  rows.reserve(lines.size());
  for (const Line& l : lines)
    rows.push_back(cells(money(amount_of(l.v3) * amount_of(l.qtda)), l.codigo.text(), l.v1.text(),
                         store::data_tela(l.data), l.nome.text(), l.vendedor.text(), l.pagamento.text()));
  return rows;
}

namespace {

// GR is found in any case spelling.
std::string reference_key(const std::string& reference) {
  std::string key;
  add_to_key(key, Value(reference));
  return key;
}

}  // namespace

Costs::Costs() {
  store::Database db = store::Workspace::open_database("\\REFE.Mdb");
  // The first card of a code is the one a search by GR would meet.
  for (store::Recordset rs = db.open_recordset("SELECT GR, E7 FROM GRUPO"); !rs.eof(); rs.move_next())
    cost_.emplace(reference_key(rs[0].text()), amount_of(rs[1]));
}

Currency Costs::of(const std::string& reference) const {
  auto it = cost_.find(reference_key(reference));
  return it == cost_.end() ? Currency{} : it->second;
}

ProductTotals product_totals(const std::vector<Line>& lines, const Costs& costs, bool by_sale) {
  Groups<Quantity> groups;
  for (const Line& l : lines) {
    Quantity& quantity = by_sale ? groups.at({&l.v1, &l.v3, &l.referencia, &l.v2, &l.codigo})
                                 : groups.at({&l.v1, &l.v3, &l.referencia, &l.v2});
    quantity.add(l.qtda);
  }
  const auto& listed = groups.sorted();
  ProductTotals totals;
  totals.rows.reserve(listed.size());
  for (const auto& [key, quantity, bytes] : listed) {
    const Currency sold = amount_of(quantity.value()), price = amount_of(key[1]);
    const Currency cost = costs.of(key[2].text());
    totals.cost = totals.cost + cost * sold;
    totals.sales = totals.sales + price * sold;
    totals.rows.push_back(cells(quantity.value().text(), key[2].text(), key[0].text(), key[3].text(),
                                ui::money_text(key[1]), money(cost), money(price * sold),
                                by_sale ? "Nr. Venda: " + key[4].text() : std::string()));
  }
  return totals;
}

namespace {

// One row per reference: its lines at every price and size summed, with
// the description that sorts first.
struct Ranked {
  Quantity quantity;
  Value v1 = Value::null();  // the least description met, nulls passed over
};

void fill_tmp(const Groups<Ranked>& groups) {
  // The work table is refilled whole, with no question between.
  store::Unit unit({"\\TMPK.MDB"});
  store::Database tmp = unit.database("\\TMPK.MDB");
  tmp.execute("DELETE FROM tmp;");
  store::Recordset out = tmp.open_recordset("SELECT A1, A2, A3 FROM tmp");
  for (const auto& [key, ranked, bytes] : groups.met()) {
    out.add_new();
    // Text padded to 5 digits gives the order: 100000 or more sorts low.
    out["A1"] = Value(format(ranked.quantity.value(), "00000"));
    out["A2"] = key[0];
    out["A3"] = ranked.v1;
    out.update();
  }
  out.close();
  unit.commit();
}

}  // namespace

Rows ranking(const std::vector<Line>& lines) {
  Groups<Ranked> groups;
  for (const Line& l : lines) {
    Ranked& ranked = groups.at({&l.referencia});
    const bool first = ranked.v1.is_null() && !l.v1.is_null();
    if (first || (!l.v1.is_null() && value_before(l.v1, ranked.v1))) ranked.v1 = l.v1;
    ranked.quantity.add(l.qtda);
  }
  fill_tmp(groups);
  Rows rows;
  rows.reserve(groups.size());
  store::Database tmp = store::Workspace::open_database("\\TMPK.MDB");
  for (store::Recordset rs = tmp.open_recordset("SELECT A1, A2, A3 FROM TMP ORDER BY A1 DESC, A2"); !rs.eof();
       rs.move_next())
    rows.push_back(cells(rs[0].text(), rs[1].text(), rs[2].text()));
  return rows;
}

Currency charged_total(const std::vector<Line>& lines) {
  // The sale's header repeats on its lines, VALOR its total among them.
  Groups<bool> sales;
  Currency total;
  for (const Line& l : lines) {
    const size_t before = sales.size();
    sales.at({&l.codigo, &l.data, &l.nome, &l.vendedor, &l.pagamento, &l.valor});
    if (sales.size() > before) total = total + amount_of(l.valor);
  }
  return total;
}

}  // namespace mz::sales::prod
