#include "finance/contas/movement.h"

#include <vector>

#include "core/format.h"
#include "core/regional.h"
#include "finance/contas/entry.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::finance::contas {

namespace {

const std::vector<std::string> kHeading = {"Venc.", "NºDoc.", "Valor", "Tipo", "Histórico", "Cliente", "Controle", ""};
constexpr int kControlColumn = 6;

std::string total_text(Currency total) { return format(Value(total), "###,##0.00"); }

Currency figure(const ui::Control& label) { return parse_money(label.text()).value_or(Currency{}); }

std::vector<std::string> grid_row(store::Recordset& rs) {
  return {rs["D3"].text(),  rs["D4"].text(), format(rs["D5"].value(), "###,###.00"), rs["D7"].text(),
          rs["D6"].text(),  rs["D9"].text(), rs["CODIGO"].text(),                    rs["D8"].text()};
}

// The settled rows of one operation on one day, in the order of their
// control numbers. A day holds few rows: the index on D2 finds them, and the
// status and the operation are only checked on each (the "+").
Currency settled_rows(store::Database& db, const char* operation, Date day,
                      std::vector<std::vector<std::string>>& rows) {
  Currency total;
  store::Recordset rs = db.open_recordset("Select * From Cada where D2 = #" + format(Value(day), "mm/dd/yyyy") +
                                          "# and +D1 = " + store::sql_quote(operation) +
                                          " and +BX = 'F' order by Codigo");
  for (; !rs.eof(); rs.move_next()) {
    rows.push_back(grid_row(rs));
    if (!rs["D5"].value().is_null()) total = total + rs["D5"].value().to_currency();
  }
  return total;
}

}  // namespace

store::Database accounts() { return store::Workspace::open_database("\\Contas.Mdb"); }

void show_movement(ui::Form& f, std::optional<Date> credits_day, Date debits_day) {
  for (const char* figure_name : {"D11", "D11X", "SL"}) f[figure_name].set_text("");
  std::vector<std::vector<std::string>> rows;
  store::Database db = accounts();
  Currency credits, debits;
  if (credits_day) credits = settled_rows(db, "Receber", *credits_day, rows);
  size_t credit_rows = rows.size();
  debits = settled_rows(db, "Pagar", debits_day, rows);
  // A figure with no row behind it stays blank, as the walk left it.
  if (credit_rows > 0) f["D11"].set_text(total_text(credits));
  if (rows.size() > credit_rows) f["D11X"].set_text(total_text(debits));
  f["SL"].set_text(total_text(credits - debits));
  ui::show_rows(f["Grid1"], kHeading, rows);
}

void show_day(ui::Runtime& rt, ui::Form& f) {
  Date today = rt.host().today().date_only();
  show_movement(f, today, today);
}

void add_to_day(ui::Form& f, store::Recordset& rs) {
  ui::GridCells& g = f["Grid1"].grid;
  std::vector<std::string> row = grid_row(rs);
  g.resize(g.rows + 1, static_cast<int>(kHeading.size()));
  for (size_t c = 0; c < row.size(); ++c) g.cell(g.rows - 1, static_cast<int>(c)) = row[c];
  Currency amount = rs["D5"].value().is_null() ? Currency{} : rs["D5"].value().to_currency();
  f["D11"].set_text(total_text(figure(f["D11"]) + amount));
}

void pick_row(ui::Form& f) {
  const ui::GridCells& g = f["Grid1"].grid;
  if (g.row < g.fixed_rows || g.row >= g.rows) return;
  f["nc"].set_text(g.cell(g.row, kControlColumn));
}

void remove_picked(ui::Runtime& rt, ui::Form& f) {
  std::string code = f["nc"].text();
  if (code.empty()) return (void)rt.message("De um duplo clique no lançamento, para depois apagar.");
  if (rt.message("Confirma exclusão?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes) return;
  {
    store::Database db = accounts();
    store::Recordset rs = db.open_recordset("SELECT* FROM CADA where CODIGO = " + store::sql_quote(code));
    if (!rs.eof()) rs.delete_current();
  }
  // Grid1 keeps the deleted row until the movement is next rebuilt.
  clear_entry(rt, f);
}

}  // namespace mz::finance::contas
