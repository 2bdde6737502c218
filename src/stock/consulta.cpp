// CONSULTA: a product looked up by description or group, and its stock by
// size; the stock of every reference; the way to the stock by group.
#include <memory>
#include <string>
#include <vector>

#include "core/format.h"
#include "stock/balance.h"
#include "stock/screens.h"
#include "stock/size_captions.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/bound_grid.h"
#include "ui/fields.h"

namespace mz::stock {

using ui::ControlKind;

namespace {

const std::vector<std::string> kProductHeading = {"Referência", "Descrição", "Vlr.a vista", "Vlr.a prazo"};
const std::vector<std::string> kSizeHeading = {"TAMANHO", "ESTOQUE"};
const std::vector<std::string> kBranchHeading = {"REF.",     "DESCRIÇÃO", "LOJA",     "FILIAL 1",
                                                 "FILIAL 2", "FILIAL 3",  "FILIAL 4", "TOTAL"};

// The product list over the products the condition lets through, in
// description order; the prices as money.
void show_products(ui::Form& f, const std::string& where) {
  ui::Control& grid = f["DBGrid1"];
  grid.record_source = "Select GR, E2, E9, E11 From grupo" + where + " Order By E2;";
  ui::refresh_bound_grid(grid);
  for (int c = 0; c < grid.grid.cols; ++c) grid.grid.cell(0, c) = kProductHeading[static_cast<size_t>(c)];
  for (int r = 1; r < grid.grid.rows; ++r)
    for (int c : {2, 3}) grid.grid.cell(r, c) = ui::money_text(Value(grid.grid.cell(r, c)));
}

// The text matches at the beginning only; an empty text matches all.
std::string starting_with(const char* column, const std::string& text) {
  return std::string(" Where (grupo.") + column + " Like " + store::sql_quote(text + "*") + ")";
}

// DETALHES: one line per slot whose balance is not zero, slot 1 only when
// the product opens it; ESTOQUE ATUAL is the sum of the lines. A reference
// not on file shows no line.
void details(ui::Form& f) {
  ui::Control& gr = f["GR"];
  gr.set_text(format(Value(gr.text()), "0000"));
  std::vector<std::vector<std::string>> lines;
  double total = 0;
  store::Recordset product =
      store::Workspace::open_database("\\REFE.Mdb").open_recordset("SELECT* FROM GRUPO where GR = " +
                                                                    store::sql_quote(gr.text()));
  if (!product.eof()) {
    std::string reference = gr.text();
    f["E2"].set_text(product["E2"].text());
    for (const SlotLine& line : slot_lines(reference, kDetails)) {
      lines.push_back({f["A" + std::to_string(line.slot)].text(), quantity_text(line.balance)});
      total += line.balance;
    }
  }
  ui::show_rows(f["Grid1"], kSizeHeading, lines);
  f["ES"].set_text(quantity_text(total));
}

// "VER ESTOQUE DE FILIAIS": every reference in code order with its whole
// balance; the four branch columns are always zero, so the total is the
// shop's own figure.
void branches(ui::Form& f) {
  auto balances = all_reference_balances();
  std::vector<std::vector<std::string>> lines;
  store::Recordset rs =
      store::Workspace::open_database("\\REFE.Mdb").open_recordset("SELECT GR, E2 FROM GRUPO ORDER BY GR");
  for (; !rs.eof(); rs.move_next()) {
    auto it = balances.find(rs["GR"].text());
    std::string balance = quantity_text(it == balances.end() ? 0.0 : it->second);
    lines.push_back({rs["GR"].text(), rs["E2"].text(), balance, "0", "0", "0", "0", balance});
  }
  ui::show_rows(f["Grid2"], kBranchHeading, lines);
}

// A click on a product brings its reference to GR, where DETALHES awaits.
void pick(ui::Runtime& rt, ui::Form& f) {
  std::string reference = ui::chosen_key(f["DBGrid1"]);
  if (reference.empty()) return;
  f["GR"].set_text(reference);
  rt.set_focus(f["GR"]);
}

void load(ui::Runtime& rt, ui::Form& f) {
  rt.centre(f);
  store::Recordset shop = store::Workspace::open_database("\\EMPE.Mdb").open_recordset("SELECT* FROM EMPE ORDER BY A1");
  if (!shop.eof()) f["LOJA"].set_text(shop["A10"].text());
  std::vector<std::string> groups;
  store::Recordset rs = store::Workspace::open_database("\\grupo.mdb").open_recordset("select A1 from A1 order by A1");
  for (; !rs.eof(); rs.move_next()) groups.push_back(rs["A1"].text());
  f["E1"].items = groups;
  load_size_captions(f);
  show_products(f, "");
  ui::show_rows(f["Grid1"], kSizeHeading, {});
}

}  // namespace

std::unique_ptr<ui::Form> make_consulta(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "CONSULTA", "CONSULTA");
  ui::Form& f = *form;
  f.add("LOJA", ControlKind::Label).bold = true;
  ui::add_field(f, "E2", ControlKind::TextBox, "DIGITE A DESCRIÇÃO DESEJADA").on_change = [&f] {
    show_products(f, starting_with("E2", f["E2"].text()));
  };
  ui::add_field(f, "E1", ControlKind::ComboBox, "GRUPO");
  f.add("Command4", ControlKind::Button, "Busca por grupo").on_click = [&f] {
    show_products(f, starting_with("E1", f["E1"].text()));
  };
  f.add("Command6", ControlKind::Button, "Mostra todos").on_click = [&rt, &f] {
    rt.wait_pointer(true);
    show_products(f, "");
    details(f);
    rt.wait_pointer(false);
  };
  ui::Control& products = f.add("DBGrid1", ControlKind::BoundGrid);
  products.database_name = "\\refe.mdb";
  products.on_click = [&rt, &f] { pick(rt, f); };
  products.on_dbl_click = [&rt, &f] { pick(rt, f); };

  ui::add_field(f, "GR", ControlKind::TextBox, "REFERÊNCIA");
  f.add("Command3", ControlKind::Button, "DETALHES").on_click = [&f] { details(f); };
  f.add("Grid1", ControlKind::Grid);
  ui::add_field(f, "ES", ControlKind::TextBox, "ESTOQUE ATUAL");
  f.add("Command2", ControlKind::Button, "> VER ESTOQUE DE FILIAIS").on_click = [&f] { branches(f); };
  f.add("Grid2", ControlKind::Grid);
  f.add("Command1", ControlKind::Button, "> ESTOQUE POR GRUPOS").on_click = [&rt] { rt.show("GRUPOS"); };
  f.add("Command5", ControlKind::Button, "> VOLTA").on_click = [&rt] { rt.close("CONSULTA"); };
  // The size captions, kept on the screen as the labels of the size list.
  add_size_captions(f);
  f.on_load = [&rt, &f] { load(rt, f); };
  return form;
}

}  // namespace mz::stock
