#include "finance/contas/closing_sales.h"

#include "store/database.h"

namespace mz::finance::contas {

namespace {

// The lines of a sale repeat its header and its whole value, so one group
// of identical header columns is one sale; a second grouping sums those.
Sums grouped_sales(const char* by, const std::string& from, const std::string& to) {
  store::Database db = store::Workspace::open_database("\\VENDA.Mdb");
  std::string sales = "SELECT DISTINCT CODIGO, DATA, NOME, VENDEDOR, PAGAMENTO, VALOR FROM VENDA WHERE DATA BETWEEN #" +
                      from + "# AND #" + to + "#";
  Sums sums;
  for (store::Recordset rs = db.open_recordset(std::string("SELECT ") + by + ", SUM(VALOR) FROM (" + sales +
                                               ") GROUP BY " + by);
       !rs.eof(); rs.move_next())
    if (!rs[1].value().is_null()) sums[rs[0].text()] = rs[1].value().to_currency();
  return sums;
}

Sums grouped_accounts(const char* by, const std::string& from, const std::string& to) {
  store::Database db = store::Workspace::open_database("\\Contas.Mdb");
  Sums sums;
  for (store::Recordset rs = db.open_recordset(std::string("SELECT ") + by + ", SUM(D5) FROM CADA WHERE D2 BETWEEN #" +
                                               from + "# AND #" + to + "# GROUP BY " + by);
       !rs.eof(); rs.move_next())
    if (!rs[1].value().is_null()) sums[rs[0].text()] = rs[1].value().to_currency();
  return sums;
}

}  // namespace

Sums sales_by_form(const std::string& from, const std::string& to) { return grouped_sales("PAGAMENTO", from, to); }
Sums sales_by_seller(const std::string& from, const std::string& to) { return grouped_sales("VENDEDOR", from, to); }

Currency sales_total(const std::string& from, const std::string& to) {
  Currency total;
  for (const auto& [form, sum] : sales_by_form(from, to)) total = total + sum;
  return total;
}

Sums accounts_by_type(const std::string& from, const std::string& to) { return grouped_accounts("D7", from, to); }
Sums accounts_by_remark(const std::string& from, const std::string& to) { return grouped_accounts("D8", from, to); }

Currency sum_of(const Sums& sums, const std::string& name) {
  auto it = sums.find(name);
  return it == sums.end() ? Currency{} : it->second;
}

std::vector<std::string> option_names(const char* file) {
  std::vector<std::string> names;
  store::Database db = store::Workspace::open_database(file);
  for (store::Recordset rs = db.open_recordset("select A1 from A1 order by A1"); !rs.eof(); rs.move_next())
    names.push_back(rs[0].text());
  return names;
}

std::vector<Seller> sellers() {
  std::vector<Seller> out;
  store::Database db = store::Workspace::open_database("\\sala.mdb");
  for (store::Recordset rs = db.open_recordset("select x2,x9 from sala order by x2"); !rs.eof(); rs.move_next())
    out.push_back({rs[0].text(), rs[1].text()});
  return out;
}

}  // namespace mz::finance::contas
