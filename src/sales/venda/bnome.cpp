// BNOME: a product by its description or its reference, then its size; the
// code goes to VENDA's GR, where Enter looks it up.
#include "core/format.h"
#include "core/text.h"
#include "records/grade.h"
#include "sales/venda/lookups.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::sales::venda {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"Referência", "Descrição"};

// The products whose column starts with what was typed, in that column's
// order; nothing typed lists them all by description.
void list_products(ui::Form& f, const char* column, const std::string& prefix) {
  std::string sql = "Select GR, E2 From grupo";
  if (!prefix.empty()) sql += std::string(" where ") + column + " like " + store::sql_quote(prefix + "*");
  sql += std::string(" order by ") + (prefix.empty() ? "e2" : column);
  std::vector<std::vector<std::string>> rows;
  store::Database db = store::Workspace::open_database("\\REFE.Mdb");
  for (store::Recordset rs = db.open_recordset(sql); !rs.eof(); rs.move_next())
    rows.push_back({rs["GR"].text(), rs["E2"].text()});
  ui::show_rows(f["Grid1"], kHeading, rows);
}

void list_sizes(ui::Control& list) {
  list.items.clear();
  auto names = records::grade_load();
  if (!names) return;
  for (size_t i = 0; i < names->size(); ++i)
    if (!(*names)[i].empty()) list.items.push_back(format(Value(static_cast<int>(i) + 1), "00") + "- " + (*names)[i]);
}

void pick_product(ui::Runtime& rt, ui::Form& f) {
  const ui::GridCells& g = f["Grid1"].grid;
  if (g.row < 1 || g.row >= g.rows) return;
  std::string reference = g.cell(g.row, 0), description = g.cell(g.row, 1);
  f["CD"].set_text(reference);
  f["E2"].set_text(description);
  rt.set_focus(f["TAM"]);
}

void confirm(ui::Runtime& rt, ui::Form& f) {
  if (f["CD"].text().empty()) {
    rt.message("De dois cliques no produto antes.");
    return;
  }
  if (f["TAM"].text().empty()) {
    rt.message("Selecione o tamanho do produto antes.");
    return;
  }
  ui::Form& venda = rt.screen("VENDA");
  venda["GR"].set_text(f["CD"].text() + left(f["TAM"].text(), 2));
  rt.close("BNOME");
  rt.set_focus(venda["GR"]);
}

}  // namespace

std::unique_ptr<ui::Form> make_bnome(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "BNOME", "Busca pelo nome");
  ui::Form& f = *form;
  ui::add_field(f, "CD", ControlKind::TextBox, "REFERÊNCIA:").on_change = [&f] {
    list_products(f, "GR", f["CD"].text());
  };
  ui::add_field(f, "E2", ControlKind::TextBox, "DESCRIÇÃO:").on_change = [&f] {
    list_products(f, "E2", f["E2"].text());
  };
  f.add("Grid1", ControlKind::Grid).on_dbl_click = [&rt, &f] { pick_product(rt, f); };
  ui::add_field(f, "TAM", ControlKind::ListBox, "TAMANHO:");
  f.add("Command1", ControlKind::Button, "&Confirma").on_click = [&rt, &f] { confirm(rt, f); };
  f.on_load = [&rt, &f] {
    rt.centre(f);
    list_products(f, "e2", "");
    list_sizes(f["TAM"]);
  };
  return form;
}

}  // namespace mz::sales::venda
