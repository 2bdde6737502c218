// A sale brought back to the screen from its stored rows. With CODIGO set
// the sale is not recorded again, and it can be printed or reversed.
#include "sales/venda/closing.h"
#include "sales/venda/grids.h"
#include "sales/venda/items.h"
#include "sales/venda/search.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::sales::venda {

namespace {

store::Recordset rows_of(store::Database& db, const std::string& number) {
  return db.open_recordset("SELECT* FROM venda where Codigo = " + store::sql_quote(number));
}

bool on_file(const char* file, const std::string& number) {
  store::Database db = store::Workspace::open_database(file);
  return !rows_of(db, number).eof();
}

void recall_lines(ui::Form& f, const std::string& number) {
  Currency total;
  ui::Control& grid = f["Grid1"];
  clear_rows(grid);
  store::Database db = store::Workspace::open_database("\\Venda.Mdb");
  for (store::Recordset rs = rows_of(db, number); !rs.eof(); rs.move_next()) {
    f["DT"].set_text(store::data_tela(rs["data"]));
    f["CODIGO"].set_text(rs["codigo"].text());
    const std::string value = ui::money_text(rs["V4"]);
    append_row(grid, {rs["qtda"].text(), rs["V1"].text(), rs["V2"].text(), ui::money_text(rs["V3"]), value});
    if (!value.empty()) total = total + amount(value);
  }
  f["TL"].set_text(money(total));
  stripe(grid);
}

// The closing rows: one for a sale closed at once, one an instalment line.
void recall_closing(ui::Form& f, const std::string& number, RecallFrom from) {
  ui::Control& grid = f["Grid3"];
  clear_rows(grid);
  store::Database db = store::Workspace::open_database("\\Venda1.Mdb");
  for (store::Recordset rs = rows_of(db, number); !rs.eof(); rs.move_next()) {
    for (const char* w : {"W1", "W2", "W3", "W4", "W5", "W6"}) f[w].set_text(ui::money_text(rs[w]));
    f["K4"].set_text(rs["k4"].text());
    f["VEN"].set_text(rs["VENDEDOR"].text());
    f["c1"].set_text(rs["C1"].text());
    f["c2"].set_text(rs["C2"].text());
    f["c3"].set_text(rs["C3"].text());
    append_row(grid, {rs["k1"].text(), rs["k2"].text(), ui::money_text(rs["k3"]), rs["k4"].text(),
                      rs[from == RecallFrom::List ? "k4" : "k5"].text()});
  }
  stripe(grid);
}

}  // namespace

void recall_sale(ui::Runtime& rt, ui::Form& f, const std::string& number, RecallFrom from) {
  // A number on neither file would only wipe the sale on the screen.
  if (!on_file("\\Venda.Mdb", number) && !on_file("\\Venda1.Mdb", number)) {
    rt.message("Venda não encontrada: " + number);
    return;
  }
  f["TL"].set_text("0,00");
  recall_lines(f, number);
  recall_closing(f, number, from);
  go_to_closing(rt, f);
}

}  // namespace mz::sales::venda
