#include "finance/contas/closing_sales.h"

#include "store/database.h"

namespace mz::finance::contas {

namespace {

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

Sales sales_between(const std::string& from, const std::string& to) {
  // The lines of a sale repeat its header and its whole value, so one group
  // of identical header columns is one sale. The date and the value lead the
  // grouping: they part almost every two sales without comparing any text.
  store::Database db = store::Workspace::open_database("\\VENDA.Mdb");
  Sales sales;
  for (store::Recordset rs = db.open_recordset(
           "SELECT PAGAMENTO, VENDEDOR, VALOR as Total FROM VENDA WHERE DATA BETWEEN #" + from + "# AND #" + to +
           "# GROUP BY DATA, VALOR, CODIGO, NOME, VENDEDOR, PAGAMENTO");
       !rs.eof(); rs.move_next()) {
    Value total = rs[2].value();
    if (total.is_null()) continue;
    Currency amount = total.to_currency();
    sales.by_form[rs[0].text()] = sales.by_form[rs[0].text()] + amount;
    sales.by_seller[rs[1].text()] = sales.by_seller[rs[1].text()] + amount;
    sales.total = sales.total + amount;
  }
  return sales;
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
