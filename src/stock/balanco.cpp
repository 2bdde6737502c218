// balanco: the stocktake. A label's code is scanned, the pieces on the shelf
// are counted, and each count stands beside the stock on record for that
// size. The lines live in bala, so a count goes on after the screen was
// closed, until they are deleted; nothing reaches a ledger from here.
#include <memory>
#include <string>
#include <vector>

#include "core/format.h"
#include "core/input_helpers.h"
#include "core/text.h"
#include "stock/balance.h"
#include "stock/size_captions.h"
#include "stock/stocktake_screens.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"
#include "ui/report.h"

namespace mz::stock {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"QUANTID.", "EST.REGISTRADO", "DIFERENÇA", "PRODUTO", "TAMANHO"};
constexpr uint32_t kStripe = 0xFFFF00;  // cyan, blue-green-red

store::Database work_table() { return store::Workspace::open_database("\\bala.MDB"); }

void stripe(ui::Control& grid) { ui::zebra_grid(grid, 1, kStripe); }

// The lines counted so far, in the order they were counted.
void show_counts(ui::Form& f) {
  std::vector<std::vector<std::string>> lines;
  for (store::Recordset rs = work_table().open_recordset("SELECT* from bala"); !rs.eof(); rs.move_next())
    lines.push_back({rs["a1"].text(), rs["a2"].text(), rs["a3"].text(), rs["a4"].text(), rs["a5"].text()});
  ui::show_rows(f["Grid1"], kHeading, lines);
  stripe(f["Grid1"]);
}

// The slot of the code's last two digits, "01" to "50"; 0 for anything else.
int slot_of(const std::string& digits) {
  if (digits.size() != 2 || !is_digit(digits[0]) || !is_digit(digits[1])) return 0;
  int slot = (digits[0] - '0') * 10 + (digits[1] - '0');
  return slot <= kSlots ? slot : 0;
}

// Leaving GR: four digits of reference and two of size, as the label's
// barcode holds them; a short number is padded first. An unknown reference
// changes nothing more, so the product and size of the code before stay.
void read_code(ui::Form& f) {
  ui::Control& gr = f["GR"];
  f["ES"].set_text("");
  gr.set_text(format(Value(gr.text()), "000000"));
  const std::string reference = left(gr.text(), 4);
  store::Recordset product =
      store::Workspace::open_database("\\REFE.Mdb").open_recordset("SELECT* FROM GRUPO where GR = " +
                                                                    store::sql_quote(reference));
  if (product.eof()) return;
  f["PR"].set_text(product["E2"].text());
  f["TP"].set_text("0");
  const int slot = slot_of(mid(gr.text(), 5, 2));
  if (slot == 0) return;
  f["TP"].set_text(f["A" + std::to_string(slot)].text());
  f["ES"].set_text(quantity_text(slot_lines(reference, single_slot(slot)).front().balance));
}

// A figure of the count: an empty one, as a slot the code did not name
// leaves EST.REGISTRADO, counts as nothing.
Currency figure(const std::string& text) { return text.empty() ? Currency{} : Value(text).to_currency(); }

// Leaving E7: the count goes to bala and to the list, and the fields are
// ready for the next code. Without a code, or without a quantity, the focus
// goes back to what is missing.
void count(ui::Runtime& rt, ui::Form& f) {
  ui::Control& gr = f["GR"];
  ui::Control& quantity = f["E7"];
  if (gr.text().empty()) return rt.set_focus(gr);
  if (!is_numeric(Value(quantity.text()))) return rt.set_focus(quantity);
  const std::string registered = f["ES"].text();
  const std::vector<std::string> line = {quantity.text(), registered,
                                         Value(figure(registered) - figure(quantity.text())).text(),
                                         ">" + gr.text() + "-" + f["PR"].text(), f["TP"].text()};
  std::string values;
  for (const std::string& value : line) values += (values.empty() ? "" : ", ") + store::sql_quote(value);
  work_table().execute("Insert into bala (A1, A2, A3, A4, A5) values (" + values + ")");

  ui::GridCells& g = f["Grid1"].grid;
  g.text.insert(g.text.end(), line.begin(), line.end());
  g.colour.insert(g.colour.end(), line.size(), ui::kWhite);
  ++g.rows;
  stripe(f["Grid1"]);
  for (const char* name : {"ES", "GR", "PR", "TP", "E7"}) f[name].set_text("");
  rt.set_focus(gr);
}

void print(ui::Report& report) {
  report.data_files = "\\bala.mdb";
  report.report_file_name = "\\bala.rpt";
  report.action(1);
}

void load(ui::Runtime& rt, ui::Form& f) {
  rt.centre(f);
  show_counts(f);
  f["E7"].set_text("0,00");
  load_size_captions(f);
}

}  // namespace

std::unique_ptr<ui::Form> make_balanco(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "balanco", "Balanço de estoque");
  ui::Form& f = *form;
  auto report = std::make_shared<ui::Report>(rt, print::Destination::Window);
  ui::add_field(f, "GR", ControlKind::TextBox, "REFERÊNCIA").on_lost_focus = [&f] { read_code(f); };
  // What the code found is shown, not typed: Enter goes from the code
  // straight to the count, as a scanner's Enter should.
  ui::add_field(f, "PR", ControlKind::Label, "PRODUTO");
  ui::add_field(f, "TP", ControlKind::Label, "TAMANHO");
  ui::add_field(f, "ES", ControlKind::Label, "EST.REGISTRADO");
  ui::Control& quantity = ui::add_field(f, "E7", ControlKind::TextBox, "QUANTID.");
  quantity.on_key_press = [&quantity](int& key) {
    key = static_cast<int>(so_numero(quantity.text(), static_cast<char32_t>(key)));
  };
  quantity.on_lost_focus = [&rt, &f] { count(rt, f); };
  f.add("Grid1", ControlKind::Grid);
  f.add("Command1", ControlKind::Button, "Apaga tabela").on_click = [&f] {
    work_table().execute("DELETE FROM bala;");
    ui::show_rows(f["Grid1"], kHeading, {});
  };
  // What stays is the list of differences.
  f.add("Command3", ControlKind::Button, "Apaga saldo = 0").on_click = [&f] {
    work_table().execute("DELETE FROM bala where a3 = '0'");
    show_counts(f);
  };
  f.add("Command2", ControlKind::Button, "Imprime").on_click = [report] { print(*report); };
  f.add("Command4", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("balanco"); };
  // The size captions, read once, for the size a code names.
  add_size_captions(f);
  f.on_load = [&rt, &f] { load(rt, f); };
  return form;
}

}  // namespace mz::stock
