// "01- Formato A4": the sale on a sheet through impeven.rpt, fed from the
// work table impeven, one row a line of the sale.
#include "core/format.h"
#include "sales/printing.h"
#include "sales/printing/ticket.h"
#include "store/database.h"
#include "store/shop_identity.h"
#include "store/sql_text.h"
#include "ui/report.h"
#include "ui/runtime.h"

namespace mz::sales {

namespace {

// The date VENDA shows: a recorded or recalled sale's own, today's for a
// sale still being entered.
std::string sale_date(ui::Runtime& rt, const std::string& number) {
  if (!number.empty()) {
    store::Database db = store::Workspace::open_database("\\VENDA.MDB");
    store::Recordset rs = db.open_recordset("SELECT DATA FROM VENDA where CODIGO = " + store::sql_quote(number));
    if (!rs.eof() && !rs[0].value().is_null()) return format(rs[0].value(), "dd/mm/yyyy");
  }
  return format(Value(rt.host().today()), "dd/mm/yyyy");
}

void fill_sheet(ui::Runtime& rt, const SaleOnScreen& s) {
  const store::ShopIdentity shop = store::shop_identity();
  const std::string date = sale_date(rt, s.codigo);
  store::Database db = store::Workspace::open_database("\\impeven.Mdb");
  db.execute("DELETE FROM impeven;");
  store::Recordset rs = db.open_recordset("SELECT * FROM impeven");
  for (const auto& item : s.items) {
    rs.add_new();
    for (size_t i = 0; i < shop.size(); ++i) rs["X" + std::to_string(i + 1)] = shop[i];
    rs["NR"] = s.codigo;
    rs["DATA"] = date;
    rs["w2"] = s.w2;
    rs["w3"] = s.w3;
    rs["nome"] = s.c1;
    rs["ven"] = s.ven;
    rs["k4"] = s.k4;
    for (size_t i = 0; i < item.size(); ++i) rs["P" + std::to_string(i + 1)] = item[i];
    rs.update();
  }
}

}  // namespace

void print_a4(ui::Runtime& rt, const SaleOnScreen& sale) {
  print_trapped(rt, [&] {
    fill_sheet(rt, sale);
    ui::Report report(rt, print::Destination::Printer);
    report.data_files = "\\impeven.Mdb";
    report.report_file_name = "\\impeven.rpt";
    report.action(1);
  });
}

}  // namespace mz::sales
