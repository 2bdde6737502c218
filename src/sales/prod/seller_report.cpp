#include "sales/prod/seller_report.h"

#include "core/format.h"
#include "store/database.h"
#include "store/shop_identity.h"
#include "store/unit.h"
#include "ui/report.h"

namespace mz::sales::prod {

namespace {

// A result in per cent of a base; nothing to compare with gives "0,00".
std::string per_cent(const Currency& part, const Currency& base) {
  if (base == Currency{}) return "0,00";
  return format(Value(part.to_double() * 100.0 / base.to_double()), "##0.00");
}

void fill_rela14(const Period& p, const Costs& costs) {
  const std::string shop = store::shop_identity()[0];
  store::Unit unit({"\\Rela14.Mdb"});
  store::Database rela = unit.database("\\Rela14.Mdb");
  rela.execute("Delete from Rela14;");
  store::Recordset out = rela.open_recordset("SELECT * FROM Rela14");
  store::Database db = store::Workspace::open_database("\\VENDA.MDB");
  for (store::Recordset rs = db.open_recordset("SELECT SUM(QTDA),V1,V3,V2,REFERENCIA,Vendedor FROM VENDA WHERE " +
                                               p.between() + " GROUP BY V1,V2,REFERENCIA,V3,Vendedor");
       !rs.eof(); rs.move_next()) {
    const Currency quantity = amount_of(rs[0]), price = amount_of(rs[2]), cost = costs.of(rs[4].text());
    const Currency sale = price * quantity, spent = cost * quantity, result = sale - spent;
    out.add_new();
    out["CODIGO"] = rs[4].value();
    out["NOME"] = Value(rs[1].text() + "-" + rs[3].text());
    out["VALOR"] = Value(money(sale));
    out["EMPE"] = Value(shop);
    out["Vendedor"] = rs[5].value();
    out["DI"] = Value(p.first_day);
    out["DF"] = Value(p.last_day);
    out["A1"] = Value(rs[0].text());
    out["E7"] = Value(money(cost));
    out["V3"] = Value(money(price));
    out["A2"] = Value(money(spent));
    out["A3"] = Value(money(result));
    out["A4"] = Value(per_cent(result, sale));
    out["A5"] = Value(per_cent(result, spent));
    out.update();
  }
  out.close();
  unit.commit();
}

}  // namespace

void print_seller_report(ui::Runtime& rt, const Period& p, const Costs& costs) {
  const bool preview = rt.message("Deseja visualizar a impressão?", ui::Buttons::YesNo) == ui::Answer::Yes;
  rt.wait_pointer(true);
  fill_rela14(p, costs);
  ui::Report report(rt, preview ? print::Destination::Window : print::Destination::Printer);
  report.data_files = "\\Rela14.MDB";
  report.report_file_name = "\\R22V.rpt";
  report.action(1);
  rt.wait_pointer(false);
}

}  // namespace mz::sales::prod
