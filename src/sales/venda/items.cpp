#include "sales/venda/items.h"

#include <array>

#include "core/error.h"
#include "core/format.h"
#include "core/input_helpers.h"
#include "core/text.h"
#include "sales/size_fields.h"
#include "sales/venda/grids.h"
#include "stock/psest.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::sales::venda {

using ui::ControlKind;

namespace {

const std::vector<std::string> kLineHeading = {"QTDA", "PRODUTO", "TAMANHO", "VL.UNIT.", "VL.TOTAL"};

void show_total(ui::Form& f, const Currency& total) {
  f["TL"].set_text(money(total));
  f["W1"].set_text(f["TL"].text());
  f["W3"].set_text(f["TL"].text());
}

// The line of what stands in GR, E7, E2, TP and E11. A quantity or a price
// that is not a number adds nothing and leaves the screen as it was.
void add_line(ui::Runtime& rt, ui::Form& f) {
  Currency price, value, total;
  try {
    price = Value(f["E11"].text()).to_currency();
    value = Value(f["E7"].text()).to_currency() * price;
    total = amount(f["TL"].text());
  } catch (const Error&) {
    return;  // also a line too large for any amount
  }
  ui::Control& grid = f["Grid1"];
  append_row(grid, {f["E7"].text(), ">" + f["GR"].text() + "-" + f["E2"].text(), f["TP"].text(), money(price),
                    money(value)});
  show_total(f, total + value);
  f["GR"].set_text("");
  f["E7"].set_text("1");
  stripe(grid);
  rt.set_focus(f["GR"]);
}

// Leaving the quantity: with neither a code nor a quantity the focus goes
// back to the code; with both, the line is added.
void leave_quantity(ui::Runtime& rt, ui::Form& f) {
  const bool code = !f["GR"].text().empty(), quantity = !f["E7"].text().empty();
  if (!code && !quantity) return rt.set_focus(f["GR"]);
  if (code && quantity) add_line(rt, f);
}

// Leaving the price: a price of zero never reaches the grid.
void leave_price(ui::Runtime& rt, ui::Form& f) {
  if (f["E11"].text().empty()) f["E11"].set_text("0,00");
  try {
    if (Value(f["E11"].text()).to_currency() == Currency{}) return f["GR"].set_text("");
  } catch (const Error&) {
    return;
  }
  if (!f["GR"].text().empty() && !f["E7"].text().empty()) add_line(rt, f);
}

// A double click on a line puts it back into the fields, without its code.
void take_back(ui::Runtime& rt, ui::Form& f) {
  ui::Control& grid = f["Grid1"];
  const int r = grid.grid.row;
  if (r < 1 || r >= grid.grid.rows) return;
  Currency total;
  try {
    total = amount(f["TL"].text()) - amount(grid.grid.cell(r, 4));
  } catch (const Error&) {
    return;
  }
  f["E7"].set_text(grid.grid.cell(r, 0));
  f["TP"].set_text(grid.grid.cell(r, 2));
  f["E11"].set_text(grid.grid.cell(r, 3));
  f["E2"].set_text(mid(grid.grid.cell(r, 1), 9, 50));
  show_total(f, total);
  rt.set_focus(f["E11"]);
  remove_row(grid, r);
  stripe(grid);
}

void price_filter(ui::Control& field) {
  field.on_key_press = [&field](int& key) { key = static_cast<int>(so_numero(field.text(), static_cast<char32_t>(key))); };
}

}  // namespace

Currency amount(const std::string& text) { return Value(text).to_currency(); }

void look_up(ui::Form& f) {
  f["TP"].set_text("");
  f["foto"].set_text("");
  const std::string code = f["GR"].text();
  store::Database db = store::Workspace::open_database("\\REFE.Mdb");
  store::Recordset rs =
      db.open_recordset("SELECT E2, E4, E9, E11 FROM GRUPO where GR = " + store::sql_quote(left(code, 4)));
  if (rs.eof()) return f["GR"].set_text("");  // an unknown reference says nothing
  f["E2"].set_text(rs["E2"].text());
  f["foto"].set_text(rs["E4"].text());
  if (f["FP"].text() == "A VISTA") f["E11"].set_text(ui::money_text(rs["E9"]));
  if (f["FP"].text() == "A PRAZO") f["E11"].set_text(ui::money_text(rs["E11"]));
  if (!f["xvv"].text().empty()) f["E11"].set_text(format(Value(f["xvv"].text()), "###,##0.00"));
  if (int slot = size_slot(code, 5)) f["TP"].set_text(f[size_field(slot)].text());
  f["xvv"].set_text("");
}

void ask_new_price(ui::Runtime& rt, ui::Form& f) {
  // A cancelled prompt gives an empty text, which takes no price.
  f["xvv"].set_text(rt.host().input_box("Digite o valor unitário (000,00) ", "Novo valor", "").value_or(""));
}

void show_stock(ui::Runtime& rt, ui::Form& f) {
  if (f["GR"].text().empty()) {
    rt.message("01- Deixe o campo quantidade em branco.\n02- Digite a referência do produto.\n03- Clique no botão ver "
               "estoque.");
    return;
  }
  std::array<std::string, stock::kSlots> captions;
  for (int n = 1; n <= stock::kSlots; ++n) captions[static_cast<size_t>(n - 1)] = f[size_field(n)].text();
  stock::show_psest(rt, left(f["GR"].text(), 4), captions);
}

void show_photo(ui::Runtime& rt, ui::Form& f) {
  if (f["foto"].text().empty()) {
    rt.message("Não foi encontrado foto para este produto.");
    return;
  }
  rt.show("fotos");
}

void go_to_items(ui::Runtime& rt, ui::Form& f) {
  f["SSTab1"].set_list_index(kItemsPage);
  rt.set_focus(f["GR"]);
}

void new_sale(ui::Runtime& rt, ui::Form& f) {
  for (const char* name : {"K1", "K3", "k5", "c1", "c2", "c3", "CODIGO"}) f[name].set_text("");
  for (const char* name : {"W1", "W2", "W3", "W4", "W5", "W6", "K2"}) f[name].set_text("0,00");
  clear_rows(f["Grid3"]);
  for (const char* name : {"xvv", "foto", "SDC"}) f[name].set_text("");
  f["TL"].set_text("0,00");
  clear_rows(f["Grid1"]);
  for (const char* name : {"E2", "TP", "E11", "GR", "E7"}) f[name].set_text("");
  f["DT"].set_text(ui::today_text(rt));
  go_to_items(rt, f);
}

void load_items(ui::Form& f) {
  f["FP"].set_text("A PRAZO");
  f["E7"].set_text("1");
  f["TL"].set_text("0,00");
  clear_rows(f["Grid1"]);
}

void add_items_tab(ui::Runtime& rt, ui::Form& f) {
  f.add("foto", ControlKind::Label).visible = false;
  ui::Control& fp = ui::add_field(f, "FP", ControlKind::ComboBox, "TABELA DE PREÇO:");
  fp.items = {"A VISTA", "A PRAZO"};
  ui::Control& code = ui::add_field(f, "GR", ControlKind::ComboBox, "CÓDIDO DE BARRA:");
  code.on_key_press = [&f](int& key) {
    if (key == '\r') look_up(f);  // Enter then moves on, and leaving GR adds the line
  };
  code.on_lost_focus = [&rt, &f] {
    if (!f["E7"].text().empty()) leave_quantity(rt, f);
  };
  ui::add_field(f, "E7", ControlKind::MaskedBox, "QUANTIDADE:").on_lost_focus = [&rt, &f] { leave_quantity(rt, f); };
  ui::Control& price = ui::add_field(f, "E11", ControlKind::MaskedBox, "VALOR UNITÁRIO");
  price_filter(price);
  price.on_lost_focus = [&rt, &f] { leave_price(rt, f); };
  // The date and number under the fields; description, size and the total
  // in the column beside them, above the lines, so the total stays in view.
  // (The hidden fields sit where the screen's layout keeps them out of it.)
  ui::add_field(f, "DT", ControlKind::Label, "DATA VENDA:");
  ui::add_field(f, "CODIGO", ControlKind::Label, "NR. VENDA:");
  ui::add_field(f, "E2", ControlKind::Label, "DESCRIÇÃO DO PRODUTO");
  ui::add_field(f, "TP", ControlKind::Label, "TAMANHO");
  ui::Control& total = ui::add_field(f, "TL", ControlKind::Label, "TOTAL");
  total.bold = true;
  f["LTL"].bold = true;
  f.add("xvv", ControlKind::Label).visible = false;
  ui::Control& grid = f.add("Grid1", ControlKind::Grid);
  ui::show_rows(grid, kLineHeading, {});
  grid.on_dbl_click = [&rt, &f] { take_back(rt, f); };
  add_size_fields(f);
  f.add("Command11", ControlKind::Button, "01- Busca por nome").on_click = [&rt] { rt.show("BNOME"); };
  f.add("Command9", ControlKind::Button, "02- Ver estoque").on_click = [&rt, &f] { show_stock(rt, f); };
  f.add("Command12", ControlKind::Button, "Foto").on_click = [&rt, &f] { show_photo(rt, f); };
}

}  // namespace mz::sales::venda
