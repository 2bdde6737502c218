#include "stock/forne/contacts.h"

#include <vector>

#include "core/format.h"
#include "stock/forne/card.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::stock::forne {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"CONTATO", "EMAIL", "DT.NASC."};

store::Database contacts() { return store::Workspace::open_database("\\FORNE2.Mdb"); }

std::string where_supplier(const std::string& code) { return " where CD = " + store::sql_quote(code); }

std::vector<std::vector<std::string>> lines_of(const ui::Control& grid) {
  std::vector<std::vector<std::string>> lines;
  for (int r = 1; r < grid.grid.rows; ++r)
    lines.push_back({grid.grid.cell(r, 0), grid.grid.cell(r, 1), grid.grid.cell(r, 2)});
  return lines;
}

void show_lines(ui::Control& grid, const std::vector<std::vector<std::string>>& lines) {
  ui::show_rows(grid, kHeading, lines);
}

// "Lançar": a line from the three fields, the date as day and month; the
// fields are emptied for the next person. Nothing without a name.
void add_line(ui::Runtime& rt, ui::Form& f) {
  if (f["A31"].text().empty()) return;
  auto lines = lines_of(f["Grid1"]);
  lines.push_back({f["A31"].text(), f["A32"].text(), format(Value(f["A33"].text()), "00/00")});
  show_lines(f["Grid1"], lines);
  for (const char* name : {"A31", "A32", "A33"}) f[name].set_text("");
  rt.set_focus(f["A31"]);
}

// A double click removes the chosen line; a single line goes back to the
// heading wherever the click fell.
void remove_line(ui::Control& grid) {
  const ui::GridCells& g = grid.grid;
  if (g.rows == 2) return show_lines(grid, {});
  if (g.row < 1 || g.row >= g.rows) return;
  auto lines = lines_of(grid);
  lines.erase(lines.begin() + (g.row - 1));
  show_lines(grid, lines);
}

}  // namespace

void add_contacts(ui::Runtime& rt, ui::Form& f) {
  size_t first = f.controls().size();
  ui::add_field(f, "A31", ControlKind::TextBox, "CONTATO");
  ui::add_field(f, "A32", ControlKind::TextBox, "EMAIL");
  ui::number_field(ui::add_field(f, "A33", ControlKind::TextBox, "DT.NASC."));
  f.add("Command1", ControlKind::Button, "Lançar").on_click = [&rt, &f] { add_line(rt, f); };
  ui::Control& grid = f.add("Grid1", ControlKind::Grid);
  grid.on_dbl_click = [&grid] { remove_line(grid); };
  show_lines(grid, {});
  for (size_t i = first; i < f.controls().size(); ++i) f.controls()[i]->page = kContactsPage;
}

void clear_contacts(ui::Form& f) {
  for (const char* name : {"A31", "A32", "A33"}) f[name].set_text("");
  show_lines(f["Grid1"], {});
}

void load_contacts(ui::Control& grid, const std::string& code) {
  std::vector<std::vector<std::string>> lines;
  store::Database db = contacts();
  for (store::Recordset rs = db.open_recordset("SELECT* FROM CLI" + where_supplier(code)); !rs.eof(); rs.move_next())
    lines.push_back({rs["A1"].text(), rs["A2"].text(), rs["A3"].text()});
  show_lines(grid, lines);
}

void save_contacts(const ui::Control& grid, const std::string& code) {
  store::Database db = contacts();
  // The old lines and the new ones change places as one, so that a failure
  // in between never leaves the supplier without its contacts.
  store::Database::Transaction unit(db);
  ui::resume_style([&] { db.execute("DELETE FROM CLI" + where_supplier(code)); });
  for (const auto& line : lines_of(grid))
    ui::resume_style([&] {
      db.execute("Insert into CLI (CD, A1, A2, A3) values (" + store::sql_quote(code) + ", " +
                 store::sql_quote(line[0]) + ", " + store::sql_quote(line[1]) + ", " + store::sql_quote(line[2]) + ")");
    });
  unit.commit();
}

void delete_contacts(const std::string& code) { contacts().execute("DELETE FROM CLI" + where_supplier(code)); }

}  // namespace mz::stock::forne
