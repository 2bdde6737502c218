#include "stock/entrada/band.h"

#include <array>
#include <vector>

#include "core/error.h"
#include "core/format.h"
#include "core/regional.h"
#include "records/grade.h"
#include "stock/balance.h"
#include "store/sql_text.h"
#include "ui/fields.h"
#include "ui/keys.h"

namespace mz::stock::band {

using ui::ControlKind;

namespace {

// The boxes of the sizes a reference has, and of those it lacks; a box of
// the second tint takes typing all the same.
constexpr uint32_t kSizeColour = 0xC0FFC0;     // a pale green, blue-green-red
constexpr uint32_t kNoSizeColour = 0xC0C0C0;   // grey
constexpr uint32_t kStripeColour = 0xFFFF00;   // cyan

std::string slot_name(int n) { return "X" + std::to_string(n); }
std::string caption_name(int n) { return "A" + std::to_string(n); }

store::Database products() { return store::Workspace::open_database("\\REFE.Mdb"); }

// A total on screen as a sum: an empty field counts as nothing; any other
// text that is not an amount is a type mismatch.
Currency amount(const std::string& text) { return text.empty() ? Currency{} : Value(text).to_currency(); }

std::string money(const Currency& value) { return format(Value(value), "###,##0.00"); }

// A box gives its tint up to the focus colour while it is entered; the
// caption over it keeps the tint to give back (a caption shows no colour).
void paint_slot(ui::Form& f, int n, uint32_t colour) {
  f[slot_name(n)].back_colour = colour;
  f[caption_name(n)].back_colour = colour;
}

void paint_slots(ui::Form& f, uint32_t colour) {
  for (int n = 1; n <= kSlots; ++n) paint_slot(f, n, colour);
}

// QUANTIDADE: the sum of what the boxes hold.
void count_pieces(ui::Form& f) {
  double pieces = 0;
  for (int n = 1; n <= kSlots; ++n) pieces += val(f[slot_name(n)].text());
  f["E6"].set_text(number_text(pieces));
}

void stripe(ui::Control& grid) { ui::zebra_grid(grid, 1, kStripeColour); }

// ITEM, on a screen that numbers its lines.
void count_line(ui::Form& f, int change) {
  ui::Control* item = f.find("ITEM");
  if (item) item->set_text(number_text(val(item->text()) + change));
}

// One more row at the end of the grid: a grid holding only its heading
// takes row 1.
int new_row(ui::Control& grid) {
  ui::GridCells& g = grid.grid;
  g.resize(g.rows + 1, g.cols);
  return g.rows - 1;
}

// Adds a line's pieces and subtotal to the totals shown: nr, TL, and TT
// when `with_document_total`.
void add_to_totals(ui::Form& f, const std::string& pieces, const std::string& subtotal, bool with_document_total) {
  ui::resume_style([&] { f["nr"].set_text(currency_text(amount(f["nr"].text()) + amount(pieces))); });
  ui::resume_style([&] { f["TL"].set_text(money(amount(f["TL"].text()) + amount(subtotal))); });
  if (with_document_total)
    ui::resume_style([&] { f["TT"].set_text(money(amount(f["TT"].text()) + amount(subtotal))); });
}

// Leaving GR: the reference's description, cost, supplier code and sizes,
// and the stock of its first slot.
void show_reference(ui::Form& f) {
  ui::Control& gr = f["GR"];
  f["ES"].set_text("0");
  f["E6"].set_text("0");
  for (const char* name : {"E7", "E2"}) f[name].set_text("");
  for (int n = 1; n <= kSlots; ++n) f[slot_name(n)].set_text("");
  paint_slots(f, kNoSizeColour);
  gr.set_text(format(Value(gr.text()), "0000"));
  store::Database db = products();
  store::Recordset rs = db.open_recordset("SELECT* FROM GRUPO where GR = " + store::sql_quote(gr.text()));
  if (!rs.eof()) {
    f["E2"].set_text(rs["E2"].text());
    f["E7"].set_text(rs["E7"].text());
    f["CD"].set_text(rs["E3"].text());
    for (int n = 1; n <= kSlots; ++n)
      if (rs[caption_name(n)].text() == "SIM") paint_slot(f, n, kSizeColour);
  }
  // EST. ATUAL looks at the first slot alone, whatever sizes the product uses.
  f["ES"].set_text(number_text(slot_lines(gr.text(), kSlotOneOnly).front().balance));
}

// Leaving CD or E2 with no reference yet: the product found by that column
// gives its reference, and leaving GR does the rest.
void find_reference(ui::Runtime& rt, ui::Form& f, const char* column, const std::string& text) {
  if (!f["GR"].text().empty()) return;
  store::Database db = products();
  store::Recordset rs =
      db.open_recordset(std::string("SELECT* FROM GRUPO where ") + column + " = " + store::sql_quote(text));
  if (rs.eof()) return;
  f["GR"].set_text(rs["GR"].text());
  rt.set_focus(f["GR"]);
}

std::vector<std::string> descriptions() {
  std::vector<std::string> names;
  store::Database db = products();
  for (store::Recordset rs = db.open_recordset("Select E2 From GRUPO GROUP BY E2 ORDER BY E2"); !rs.eof();
       rs.move_next())
    names.push_back(rs["E2"].text());
  return names;
}

// A double click on a line takes it out of the grid and of the totals.
void remove_line(ui::Form& f) {
  ui::Control& grid = f["Grid1"];
  ui::GridCells& g = grid.grid;
  if (g.row < 1 || g.row >= g.rows) return;
  int row = g.row;
  std::string pieces = g.cell(row, kQuantityColumn), subtotal = g.cell(row, kSubtotalColumn);
  ui::resume_style([&] { f["nr"].set_text(number_text(val(f["nr"].text()) - val(pieces))); });
  for (const char* total : {"TL", "TT"})
    ui::resume_style([&] { f[total].set_text(money(amount(f[total].text()) - amount(subtotal))); });
  count_line(f, -1);
  if (g.rows == 2) return empty_grid(f);
  for (int r = row; r + 1 < g.rows; ++r)
    for (int c = 0; c < g.cols; ++c) g.cell(r, c) = g.cell(r + 1, c);
  g.resize(g.rows - 1, g.cols);
  if (g.row >= g.rows) g.row = g.rows - 1;
  stripe(grid);
}

}  // namespace

void add_band(ui::Runtime& rt, ui::Form& f, int page) {
  size_t first = f.controls().size();
  ui::Control& cd = ui::add_field(f, "CD", ControlKind::TextBox, "CÓD.FORNEC.");
  ui::Control& gr = ui::add_field(f, "GR", ControlKind::TextBox, "REFERÊNCIA");
  ui::Control& e2 = ui::add_field(f, "E2", ControlKind::ComboBox, "DESCRIÇÃO");
  // Each size caption stands over its box.
  for (int n = 1; n <= kSlots; ++n) {
    ui::Control& caption = f.add(caption_name(n), ControlKind::Label);
    caption.block = "grade";
    ui::Control& slot = f.add(slot_name(n), ControlKind::TextBox);
    slot.block = "grade";
    slot.on_lost_focus = [&slot, &caption] { slot.back_colour = caption.back_colour; };
    slot.on_key_press = [](int& key) {
      bool digit = key >= '0' && key <= '9';
      if (!digit && key != ui::key::kBackspace && key != ui::key::kEnter) key = 0;
    };
  }
  ui::add_field(f, "E6", ControlKind::Label, "QUANTIDADE");
  ui::Control& e7 = ui::add_field(f, "E7", ControlKind::TextBox, "VLR.COMPRA");
  ui::add_field(f, "ES", ControlKind::Label, "EST. ATUAL");
  ui::Control& et = ui::add_field(f, "ET", ControlKind::ComboBox, "ETIQUETA");
  et.items = {"SIM", "NÃO"};
  f.add("ParaLancar", ControlKind::Label, "PARA LANÇAR");
  f.add("TecleF1", ControlKind::Label, "TECLE F1 ");
  ui::Control& grid = f.add("Grid1", ControlKind::Grid);
  for (size_t i = first; i < f.controls().size(); ++i) f.controls()[i]->page = page;

  cd.on_lost_focus = [&rt, &f, &cd] { find_reference(rt, f, "E3", cd.text()); };
  e2.on_lost_focus = [&rt, &f, &e2] { find_reference(rt, f, "E2", e2.text()); };
  gr.on_lost_focus = [&f] { show_reference(f); };
  e7.on_got_focus = [&f] { count_pieces(f); };
  et.on_got_focus = [&et] { et.set_text("SIM"); };
  et.on_lost_focus = [&rt, &f] { launch_line(rt, f); };
  grid.on_dbl_click = [&f] { remove_line(f); };
}

void load_band(ui::Form& f) {
  ui::name_combo(f["E2"], descriptions());
  std::array<std::string, kSlots> captions{};
  if (auto grade = records::grade_load()) captions = *grade;
  ui::GridCells& g = f["Grid1"].grid;
  g.fixed_rows = 1;
  g.fixed_cols = 1;
  g.text.clear();
  g.rows = 1;
  g.cols = 0;
  g.resize(1, kColumns);
  g.cell(0, kReferenceColumn) = "Referência";
  for (int n = 1; n <= kSlots; ++n) {
    f[caption_name(n)].set_text(captions[static_cast<size_t>(n - 1)]);
    g.cell(0, n) = captions[static_cast<size_t>(n - 1)];
  }
  g.cell(0, kQuantityColumn) = "Qtda.";
  g.cell(0, kCostColumn) = "Custo";
  g.cell(0, kSubtotalColumn) = "Sub.Total";
  g.cell(0, kLabelColumn) = "Etiq.";
  f["ES"].set_text("0");
  paint_slots(f, kNoSizeColour);
  reset_totals(f);
}

void launch_line(ui::Runtime& rt, ui::Form& f) {
  ui::resume_style([&] { count_pieces(f); });
  if (f["ET"].text().empty()) f["ET"].set_text("SIM");
  const std::string pieces = f["E6"].text();
  if (pieces.empty() || pieces == "0") return;
  if (f["E7"].text().empty()) f["E7"].set_text("0,00");
  const std::string reference = f["GR"].text();
  if (!reference.empty()) {
    ui::Control& grid = f["Grid1"];
    int row = new_row(grid);
    ui::GridCells& g = grid.grid;
    g.cell(row, kReferenceColumn) = reference;
    for (int n = 1; n <= kSlots; ++n)
      if (!f[slot_name(n)].text().empty()) g.cell(row, n) = f[slot_name(n)].text();
    g.cell(row, kQuantityColumn) = pieces;
    const std::string cost = f["E7"].text();
    ui::resume_style([&] { g.cell(row, kCostColumn) = format(Value(cost), "###,##0.00"); });
    ui::resume_style([&] { g.cell(row, kSubtotalColumn) = money(amount(pieces) * amount(cost)); });
    add_to_totals(f, pieces, g.cell(row, kSubtotalColumn), true);
    g.cell(row, kLabelColumn) = f["ET"].text();
    count_line(f, 1);
  }
  for (const char* name : {"CD", "E2", "E7", "GR"}) f[name].set_text("");
  f["E6"].set_text("0");
  stripe(f["Grid1"]);
  rt.set_focus(f["GR"]);
}

void clear_line(ui::Form& f) {
  for (const char* name : {"GR", "E2", "CD", "E7", "E6", "ES"}) f[name].set_text("");
  for (int n = 1; n <= kSlots; ++n) f[slot_name(n)].set_text("");
  paint_slots(f, kNoSizeColour);
}

void reset_totals(ui::Form& f) {
  f["TL"].set_text("0");
  f["nr"].set_text("0");
  f["TT"].set_text("");
}

void empty_grid(ui::Form& f) {
  ui::GridCells& g = f["Grid1"].grid;
  g.resize(1, g.cols);
  g.row = 0;
}

void add_recorded_line(ui::Form& f, store::Recordset& rs, bool with_document_total) {
  ui::Control& grid = f["Grid1"];
  int row = new_row(grid);
  ui::GridCells& g = grid.grid;
  g.cell(row, kReferenceColumn) = rs["REFERENCIA"].text();
  for (int n = 1; n <= kSlots; ++n) g.cell(row, n) = rs[slot_name(n)].text();
  g.cell(row, kQuantityColumn) = rs["QTDA"].text();
  ui::resume_style([&] { g.cell(row, kCostColumn) = ui::money_text(rs["VALOR"]); });
  ui::resume_style([&] {
    g.cell(row, kSubtotalColumn) = money(rs["VALOR"].value().to_currency() * rs["QTDA"].value().to_currency());
  });
  add_to_totals(f, g.cell(row, kQuantityColumn), g.cell(row, kSubtotalColumn), with_document_total);
  g.cell(row, kLabelColumn) = rs["ET"].text();
  stripe(grid);
}

}  // namespace mz::stock::band
