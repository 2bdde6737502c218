// BUDP: the trade bills falling due in a period, or drawn on one customer;
// a double click takes a bill back to DUPLI.
#include <memory>

#include "core/format.h"
#include "documents/fields.h"
#include "documents/lookups.h"
#include "documents/screens.h"
#include "store/database.h"
#include "store/sql_text.h"

namespace mz::documents {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"NÚMERO", "VENCIMENTO", "VALOR"};

void list_bills(ui::Form& f, const std::string& where) {
  std::vector<std::vector<std::string>> rows;
  store::Database db = store::Workspace::open_database("\\DP.Mdb");
  for (store::Recordset rs = db.open_recordset("SELECT* FROM DP " + where + " ORDER BY A5, CODIGO"); !rs.eof();
       rs.move_next()) {
    Value amount = rs["A4"];
    rows.push_back({rs["CODIGO"].text(), store::data_tela(rs["A5"]),
                    amount.is_null() ? std::string() : format(amount, "###,###.00")});
  }
  show_rows(f["Grid1"], kHeading, rows);
}

}  // namespace

std::unique_ptr<ui::Form> make_budp(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "BUDP", "Busca Duplicatas");
  ui::Form& f = *form;
  date_field(add_field(f, "A2", ControlKind::MaskedBox, "DATA INICIAL:"));
  date_field(add_field(f, "A3", ControlKind::MaskedBox, "DATA FINAL:"));
  f.add("Command1", ControlKind::Button, "Busca por período").on_click = [&rt, &f] {
    list_bills(f, period_where(rt, f["A2"], f["A3"], "A5"));
  };
  add_field(f, "A9", ControlKind::ComboBox, "CLIENTE:");
  f.add("Command2", ControlKind::Button, "Busca por cliente").on_click = [&f] {
    list_bills(f, "where A9 = " + store::sql_quote(f["A9"].text()));
  };
  f.add("Label1", ControlKind::Label, "Para consultar, de um duplo clique sobre a mesma.");
  ui::Control& grid = f.add("Grid1", ControlKind::Grid);
  grid.on_dbl_click = [&rt, &grid] {
    std::string number = chosen_key(grid);
    if (number.empty()) return;
    rt.close("BUDP");
    show_trade_bill(rt, number);
  };
  f.add("Command7", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("BUDP"); };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["A2"].set_text(today_text(rt));
    f["A3"].set_text(today_text(rt));
    name_combo(f["A9"], customer_names());
    show_rows(f["Grid1"], kHeading, {});
  };
  return form;
}

}  // namespace mz::documents
