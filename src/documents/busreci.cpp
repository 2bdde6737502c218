// BUSRECI: the receipts of a period or of a payer, with their total; a
// double click takes a receipt back to RECIBO.
#include <memory>

#include "core/format.h"
#include "documents/fields.h"
#include "documents/lookups.h"
#include "documents/screens.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/report.h"

namespace mz::documents {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"NÚMERO", "DATA", "CLIENTE", "VALOR"};

void list_receipts(ui::Form& f, const std::string& where) {
  std::vector<std::vector<std::string>> rows;
  Currency total;
  store::Database db = store::Workspace::open_database("\\RECI.Mdb");
  for (store::Recordset rs = db.open_recordset("SELECT* FROM RECI " + where + " ORDER BY R4, CODIGO"); !rs.eof();
       rs.move_next()) {
    Value amount = rs["R9"];
    if (!amount.is_null()) total = total + amount.to_currency();
    rows.push_back({rs["CODIGO"].text(), store::data_tela(rs["R4"]), rs["R2"].text(),
                    amount.is_null() ? std::string() : format(amount, "###,###.00")});
  }
  show_rows(f["Grid1"], kHeading, rows);
  f["TL"].set_text(format(Value(total), "###,###.00"));
}

}  // namespace

std::unique_ptr<ui::Form> make_busreci(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "BUSRECI", "Busca Recibo");
  ui::Form& f = *form;
  date_field(add_field(f, "A2", ControlKind::MaskedBox, "DATA INICIAL"));
  date_field(add_field(f, "A3", ControlKind::MaskedBox, "DATA FINAL"));
  f.add("Command1", ControlKind::Button, "Busca por período").on_click = [&rt, &f] {
    list_receipts(f, period_where(rt, f["A2"], f["A3"], "R4"));
  };
  add_field(f, "R2", ControlKind::ComboBox, "CLIENTE:");
  f.add("Command2", ControlKind::Button, "Busca por cliente").on_click = [&f] {
    list_receipts(f, "where R2 = " + store::sql_quote(f["R2"].text()));
  };
  ui::Control& grid = f.add("Grid1", ControlKind::Grid);
  grid.on_dbl_click = [&rt, &grid] {
    std::string number = chosen_key(grid);
    if (number.empty()) return;
    rt.close("BUSRECI");
    show_receipt(rt, number);
  };
  add_field(f, "TL", ControlKind::TextBox, "TOTAL:").tab_stop = false;

  auto report = std::make_shared<ui::Report>(rt, print::Destination::Window);
  f.add("Command3", ControlKind::Button, "&Relatório").on_click = [&rt, &f, report] {
    Date from = period_bound(rt, f["A2"]), to = period_bound(rt, f["A3"]);
    auto date = [](Date d) {
      return "Date ( " + std::to_string(d.year()) + "," + std::to_string(d.month()) + "," + std::to_string(d.day()) + ")";
    };
    report->data_files = "\\reci.MDB";
    report->selection_formula = "{reci.r4} >= " + date(from) + " and  {reci.r4} <= " + date(to);
    report->report_file_name = "\\Rreci.rpt";
    report->action(1);
  };
  f.add("Command7", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("BUSRECI"); };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["A2"].set_text(today_text(rt));
    f["A3"].set_text(today_text(rt));
    name_combo(f["R2"], customer_names());
    show_rows(f["Grid1"], kHeading, {});
  };
  return form;
}

}  // namespace mz::documents
