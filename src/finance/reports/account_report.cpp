#include "finance/reports/account_report.h"

#include "core/error.h"
#include "store/database.h"
#include "store/sql_text.h"

namespace mz::finance::reports {

namespace {

// The columns copied as they stand; D9 is the customer's name except in the
// reports by customer, where the name goes to TIPO and D9 shows D8.
constexpr const char* kCopied[] = {"D2", "D3", "D4", "D5", "D6", "D7", "D8", "D10"};
constexpr const char* kPayment[] = {"PG", "VP", "DVP"};

std::string accounts_of(const Variant& v, const Period& period, const std::string* customer) {
  // BX, D1 and D3 lead the index (BX, D1, D3, CODIGO): by due date the walk
  // is a range of it, already in order; by another date it stays within the
  // filter's rows.
  std::string sql = "SELECT D2, D3, D4, D5, D6, D7, D8, D9, D10, NOME, PG, VP, DVP FROM CADA WHERE BX = " +
                    store::sql_quote(v.status) + " AND D1 = " + store::sql_quote(v.operation) + " AND " +
                    v.date_column + " BETWEEN #" + store::data_sql(period.from, Date{}) + "# AND #" +
                    store::data_sql(period.to, Date{}) + "#";
  if (customer) sql += " AND D9 = " + store::sql_quote(*customer);
  return sql + " ORDER BY D3, CODIGO";
}

}  // namespace

void fill_rela3(const Variant& v, const Period& period, const std::string* customer) {
  const bool settled = std::string_view(v.status) == "F";
  store::Database contas = store::Workspace::open_database("\\Contas.Mdb");
  store::Recordset from = contas.open_recordset(accounts_of(v, period, customer));
  store::Database rela = store::Workspace::open_database("\\Rela3.MDB");
  store::Database::Transaction unit(rela);
  rela.execute("DELETE FROM Rela3;");
  store::Recordset to = rela.open_recordset("SELECT* FROM Rela3");
  for (; !from.eof(); from.move_next()) {
    to.add_new();
    for (const char* column : kCopied) to[column] = from[column].value();
    to["D9"] = from[customer ? "D8" : "D9"].value();
    to["EMPRESA"] = from["NOME"].value();
    to["RELA"] = Value(std::string(v.rela));
    to["DI"] = Value(period.from);
    to["DF"] = Value(period.to);
    if (settled)
      for (const char* column : kPayment) to[column] = from[column].value();
    if (customer) to["TIPO"] = Value("CLIENTE: " + *customer);
    to.update();
  }
  unit.commit();
}

void print_rela3(ui::Runtime& rt, ReportPair& reports, const Variant& v) {
  ui::preview_or_print(rt, reports, v.report_file, "\\Rela3.MDB");
}

}  // namespace mz::finance::reports
