// troca: one line of a recorded sale taken back, alone or against another
// product. Only the sale's rows in VENDA.MDB change; the stock follows them.
#include <memory>
#include <string>
#include <vector>

#include "core/error.h"
#include "core/format.h"
#include "core/text.h"
#include "sales/money.h"
#include "sales/results_screens.h"
#include "sales/size_fields.h"
#include "stock/balance.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "store/unit.h"
#include "ui/fields.h"

namespace mz::sales {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"QTDA", "PRODUTO", "TAMANHO", "VL.UNIT.", "VL.TOTAL"};
const char* const kCaptions[] = {"QTDA:", "REF.:", "DESCRIÇÃO:", "TAM:", "VL.UNIT.:", "TOTAL:"};


void search(ui::Form& f) {
  f["nr"].set_text(format(Value(f["nr"].text()), "00000000"));
  std::vector<std::vector<std::string>> rows;
  store::Database db = store::Workspace::open_database("\\venda.MDB");
  for (store::Recordset rs = db.open_recordset("SELECT QTDA, V1, V2, V3, V4 FROM venda where Codigo = " +
                                               store::sql_quote(f["nr"].text()));
       !rs.eof(); rs.move_next())
    rows.push_back({rs["QTDA"].text(), rs["V1"].text(), rs["V2"].text(), ui::money_text(rs["V3"]),
                    ui::money_text(rs["V4"])});
  ui::show_rows(f["Grid1"], kHeading, rows);
}

// A double click on a line makes it the one that returns.
void choose_line(ui::Form& f) {
  const ui::GridCells& g = f["Grid1"].grid;
  if (g.row < g.fixed_rows || g.row >= g.rows) return;
  const std::string& line = g.cell(g.row, 1);
  f["p1"].set_text(g.cell(g.row, 0));
  f["p2"].set_text(mid(line, 2, 6));
  f["v1"].set_text(line);
  f["p3"].set_text(mid(line, 9, 28));
  f["p4"].set_text(g.cell(g.row, 2));
  f["p5"].set_text(g.cell(g.row, 3));
  f["p6"].set_text(g.cell(g.row, 4));
}

// Leaving T2: the product delivered in exchange, always at the credit price.
void look_up_replacement(ui::Form& f) {
  const std::string code = format(Value(f["T2"].text()), "000000");
  f["T2"].set_text(code);
  f["T1"].set_text("1");
  store::Database db = store::Workspace::open_database("\\REFE.Mdb");
  store::Recordset rs = db.open_recordset("SELECT E2, E11 FROM GRUPO where GR = " + store::sql_quote(left(code, 4)));
  if (rs.eof()) return;
  f["T3"].set_text(rs["E2"].text());
  f["T5"].set_text(ui::money_text(rs["E11"]));
  if (int slot = size_slot(code, 5)) f["T4"].set_text(f[size_field(slot)].text());
  try {
    f["T6"].set_text(money(Value(f["T1"].text()).to_currency() * Value(f["T5"].text()).to_currency()));
  } catch (const Error&) {
    f["T6"].set_text("");  // no price on the product's card
  }
}

// The rows of the sale that are the chosen line: same quantity, line text and size.
std::string matching_lines(const ui::Form& f) {
  return " WHERE CODIGO = " + store::sql_quote(f["nr"].text()) + " AND QTDA = " + store::sql_quote(f["p1"].text()) +
         " AND V1 = " + store::sql_quote(f["v1"].text()) + " AND V2 = " + store::sql_quote(f["p4"].text());
}

std::string exchanged_line(const ui::Form& f) {
  const std::string code = f["T2"].text(), quantity = store::sql_quote(f["T1"].text());
  std::string set = "qtda = " + quantity + ", v1 = " + store::sql_quote(">" + code + "-" + f["T3"].text()) +
                    ", v2 = " + store::sql_quote(f["T4"].text()) + ", V3 = " + store::sql_quote(f["T5"].text()) +
                    ", V4 = " + store::sql_quote(f["T6"].text()) + ", REFERENCIA = " + store::sql_quote(left(code, 4));
  const int slot = size_slot(code, 5);
  for (int n = 1; n <= stock::kSlots; ++n)
    set += ", X" + std::to_string(n) + " = " + (n == slot ? quantity : std::string("'0'"));
  return set;
}

void confirm(ui::Runtime& rt, ui::Form& f) {
  if (f["p3"].text().empty()) {
    rt.message("Selecione primeiro o item a ser trocado ou devolvido, com um duplo clique no mesmo.");
    return;
  }
  if (f["T2"].text().empty()) rt.message("Sua operação indica que é somente uma devolução sem troca.");
  if (rt.message("Confirma operação?", ui::Buttons::YesNo) != ui::Answer::Yes) return;
  {
    // Every matching line changes, all of them or none.
    store::Unit unit({"\\Venda.Mdb"});
    store::Database db = unit.database("\\Venda.Mdb");
    if (f["T3"].text().empty()) db.execute("DELETE FROM venda" + matching_lines(f));
    else db.execute("UPDATE venda SET " + exchanged_line(f) + matching_lines(f));
    unit.commit();
  }
  rt.message("Operação realizada.");
}

void add_band(ui::Form& f, const char* prefix, const char* heading) {
  f.add(std::string("L") + prefix, ControlKind::Label, heading).bold = true;
  for (int i = 1; i <= 6; ++i) {
    ui::Control& c = ui::add_field(f, prefix + std::to_string(i), ControlKind::TextBox, kCaptions[i - 1]);
    c.enter_moves_on = true;
  }
}

}  // namespace

std::unique_ptr<ui::Form> make_troca(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "troca", "Troca");
  ui::Form& f = *form;
  f.width = 900;
  f.height = 600;
  ui::Control& nr = ui::add_field(f, "nr", ControlKind::TextBox, "NR. VENDA:");
  nr.enter_moves_on = true;
  f.add("Command1", ControlKind::Button, "Busca venda").on_click = [&f] { search(f); };
  ui::Control& grid = f.add("Grid1", ControlKind::Grid);
  ui::show_rows(grid, kHeading, {});
  grid.on_dbl_click = [&f] { choose_line(f); };
  add_band(f, "p", "Produto devolvido:");
  add_band(f, "T", "Produto entregue na troca");
  f["T2"].on_lost_focus = [&f] { look_up_replacement(f); };
  // The returned line as stored, kept out of sight.
  f.add("v1", ControlKind::TextBox).visible = false;
  f.add("Command2", ControlKind::Button, "Confirma").on_click = [&rt, &f] { confirm(rt, f); };
  f.add("Command3", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("troca"); };
  add_size_fields(f);

  f.on_load = [&rt, &f] {
    rt.centre(f);
    load_size_names(f);
  };
  return form;
}

}  // namespace mz::sales
