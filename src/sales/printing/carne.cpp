// "05- Carnê" and "03- Carnê parcelas": the instalment booklet through
// CARNE.RPT, fed from the work table Carne.
#include "sales/printing.h"
#include "sales/printing/ticket.h"
#include "store/database.h"
#include "ui/report.h"
#include "ui/runtime.h"

namespace mz::sales {

namespace {

// Each instalment line twice, one for each half of a booklet page.
void fill_booklet(const SaleOnScreen& s) {
  store::Database db = store::Workspace::open_database("\\IMCARNE.MDB");
  db.execute("Delete from carne;");
  store::Recordset rs = db.open_recordset("SELECT * FROM carne");
  int line = 0;
  for (const auto& instalment : s.instalments) {
    ++line;
    for (int half = 0; half < 2; ++half) {
      rs.add_new();
      // The value of VENDA's payment forms button, which is not pressed;
      // the report takes the shop's name from EMPE.
      rs["Empresa"] = Value::boolean(false);
      rs["CLIENTE"] = s.c1;
      rs["Compra"] = s.w3;
      rs["PGTO"] = s.k4;
      rs["PARCELA"] = instalment[0];
      rs["VENC"] = instalment[1];
      rs["VLRPARCELA"] = instalment[2];
      rs["NUMPARCELA"] = line;
      rs.update();
    }
  }
}

}  // namespace

void print_carne(ui::Runtime& rt, const SaleOnScreen& sale) {
  if (sale.instalments.empty()) return (void)rt.message("Lance o parcelamento antes de imprimir o carnê.");
  print_trapped(rt, [&] {
    fill_booklet(sale);
    ui::Report report(rt, print::Destination::Printer);
    report.data_files = "\\IMCARNE.MDB";
    report.report_file_name = "\\CARNE.RPT";
    report.action(1);
  });
}

}  // namespace mz::sales
