#include "sales/venda/resumo.h"

#include "store/database.h"
#include "ui/fields.h"
#include "ui/report.h"

namespace mz::sales::venda {

namespace {

// A1 and A3 to A6 take the row's columns in their own places; A2 holds the
// day of the print instead of the sale's date.
constexpr const char* kColumns[] = {"A1", nullptr, "A3", "A4", "A5", "A6"};

void fill_summary(ui::Runtime& rt, ui::Form& f) {
  const std::string seller = f["T3"].text();
  const std::string title =
      seller.empty() ? "Relatório de vendas geral." : "Relatório de vendas do vendedor: " + seller;
  store::Database db = store::Workspace::open_database("\\ver.MDB");
  db.execute("DELETE FROM ver;");
  const ui::GridCells& g = f["Grid4"].grid;
  store::Recordset rs = db.open_recordset("SELECT* FROM ver");
  for (int r = 1; r < g.rows; ++r) {
    rs.add_new();
    rs["A2"] = ui::today_text(rt);
    rs["nome"] = title;
    for (int c = 0; c < g.cols && c < 6; ++c)
      if (kColumns[c]) rs[kColumns[c]] = g.cell(r, c);
    rs.update();
  }
}

}  // namespace

void print_resumo(ui::Runtime& rt, ui::Form& f) {
  fill_summary(rt, f);
  f["T1"].set_text(ui::today_text(rt));
  f["T2"].set_text(ui::today_text(rt));
  ui::Report report(rt, print::Destination::Window);
  report.data_files = "\\ver.MDB";
  report.report_file_name = "\\ver.rpt";
  report.action(1);
}

}  // namespace mz::sales::venda
