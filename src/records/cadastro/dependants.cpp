// Dependants link to the customer by name: they follow whatever name the
// card holds when it is looked up or stored.
#include <vector>

#include "records/cadastro/card.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::records::cadastro {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"NOME DO DEPENDENTE", "DT.NASC."};

store::Database dependants() { return store::Workspace::open_database("\\DEPE.MDB"); }

std::string of_customer(const std::string& customer) { return " where A1 = " + store::sql_quote(customer); }

// The grid's data lines, as (name, date of birth).
std::vector<std::vector<std::string>> lines(const ui::Control& grid) {
  std::vector<std::vector<std::string>> out;
  const ui::GridCells& g = grid.grid;
  for (int r = g.fixed_rows; r < g.rows; ++r) out.push_back({g.cell(r, 0), g.cell(r, 1)});
  return out;
}

}  // namespace

void add_dependants(CadastroForm& f) {
  ui::add_field(f, "X1", ControlKind::TextBox, "NOME DO DEPENDENTE:");
  ui::date_field(ui::add_field(f, "X2", ControlKind::MaskedBox, "DT.NASC.:"));
  // A line is added when X2 is left with a name in X1; the focus goes back
  // to X1 for the next one. A double click on a line takes it out.
  f["X2"].on_lost_focus = [&f] {
    if (!f["X1"].text().empty()) f.add_dependant();
  };
  ui::Control& grid = f.add("Grid1", ControlKind::Grid);
  grid.tab_stop = false;
  grid.on_dbl_click = [&f] { f.remove_dependant(); };
  ui::show_rows(grid, kHeading, {});
}

void CadastroForm::show_dependants(const std::string& customer) {
  std::vector<std::vector<std::string>> rows;
  if (!customer.empty()) {
    store::Database db = dependants();
    for (store::Recordset rs = db.open_recordset("SELECT* FROM DEPE" + of_customer(customer)); !rs.eof();
         rs.move_next())
      rows.push_back({rs["NOME"].text(), store::data_tela(rs["DATA"])});
  }
  ui::show_rows((*this)["Grid1"], kHeading, rows);
}

void CadastroForm::add_dependant() {
  ui::Control& grid = (*this)["Grid1"];
  auto rows = lines(grid);
  rows.push_back({(*this)["X1"].text(), (*this)["X2"].text()});
  ui::show_rows(grid, kHeading, rows);
  (*this)["X1"].set_text("");
  (*this)["X2"].set_text("");
  rt().set_focus((*this)["X1"]);
}

void CadastroForm::remove_dependant() {
  ui::Control& grid = (*this)["Grid1"];
  int row = grid.grid.row;
  auto rows = lines(grid);
  if (row < 1 || row > static_cast<int>(rows.size())) return;
  rows.erase(rows.begin() + (row - 1));
  ui::show_rows(grid, kHeading, rows);
}

void CadastroForm::save_dependants(const std::string& customer) {
  auto rows = lines((*this)["Grid1"]);
  if (rows.empty()) return;  // an empty grid leaves the rows on file alone
  store::Database db = dependants();
  store::Database::Transaction unit(db);
  db.execute("delete from DEPE" + of_customer(customer));
  store::Recordset rs = db.open_recordset("SELECT* FROM DEPE" + of_customer(customer));
  for (const auto& line : rows) {
    rs.add_new();
    rs["A1"] = Value(customer);
    rs["NOME"] = Value(line[0]);
    rs["DATA"] = Value(ui::stored_date(line[1]));
    rs.update();
  }
  unit.commit();
}

}  // namespace mz::records::cadastro
