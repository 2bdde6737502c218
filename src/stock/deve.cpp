// deve, ACERTOS: the entries of one supplier and reference as they stand in
// ENTRA.MDB, open for overtyping. A cell that is left goes straight to its
// row: the entry keeps its number, date and piece count, and the stock of a
// size follows the new quantity from then on.
#include <memory>
#include <string>
#include <vector>

#include "core/error.h"
#include "core/format.h"
#include "stock/stocktake_screens.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::stock {

using ui::ControlKind;

namespace {

const char* const kInstructions[] = {
    "01 - SELECIONE O FORNECEDOR E A REFERÊNCIA, EM SEGUIDA CLIQUE NO BOTÃO BUSCA.",
    "02 - ROLANDO A BARRA NA HORIZONTAL, VOCÊ LOCALIZA A QUANTIDADE E O TAMANHO DA REFERÊNCIA QUE DESEJA FAZER O "
    "ACERTO.",
    "03 - CLIQUE COM O MOUSE SOBRE A QUANTIDADE QUE DESEJA ACERTAR E DIGITE A NOVA QUANTIDADE, NUNCA DEIXE EM BRANCO "
    "O CAMPO.",
    "04 - UMA VEZ ALTERADA A QUANTIDADE, BASTA SAIR DESTE MÓDULO QUE A OPERAÇÃO JÁ ESTARÁ REALIZADA.",
};

// Data1: the rows the grid shows, in the grid's order, each still tied to
// its row of ENTRA. All of them are read at once, so no read is left open
// on the file while the user looks at them.
struct Data1 {
  store::Recordset rows;
  bool open = false;
};

// The suppliers among the customer cards. The ledger's names come from the
// supplier file instead, so a name may be typed that the list lacks.
std::vector<std::string> supplier_cards() {
  std::vector<std::string> names;
  store::Database db = store::Workspace::open_database("\\CADA.Mdb");
  for (store::Recordset rs = db.open_recordset("select A1 from CADA where A26 = 'FORNECEDOR' order by A1"); !rs.eof();
       rs.move_next())
    names.push_back(rs[0].text());
  return names;
}

// "< BUSCA": the supplier's entries of references that begin with GR.
// Without both, nothing happens.
void search(ui::Form& f, Data1& data) {
  const std::string& supplier = f["EE3"].text();
  const std::string& reference = f["GR"].text();
  if (supplier.empty() || reference.empty()) return;
  ui::Control& grid = f["DBGrid1"];
  grid.record_source = "Select * from entra where entra.nome Like  " + store::sql_quote(supplier) +
                       " AND (entra.REFERENCIA Like  " + store::sql_quote(reference + "*") + ")  ";
  data.rows = store::Workspace::open_database(grid.database_name).open_recordset(grid.record_source);
  data.open = true;
  std::vector<std::string> names;
  for (size_t c = 0; c < data.rows.field_count(); ++c) names.push_back(data.rows[c].name());
  std::vector<std::vector<std::string>> lines;
  for (; !data.rows.eof(); data.rows.move_next()) {
    std::vector<std::string> line;
    for (size_t c = 0; c < names.size(); ++c) line.push_back(data.rows[c].text());
    lines.push_back(std::move(line));
  }
  ui::show_rows(grid, names, lines);
  ui::zebra_grid(grid, 1, ui::kWhite);  // a bound list is not striped
}

// A cell left after typing: its value goes to the row's column at once. A
// value the column cannot take is refused with the store's message, and the
// cell shows the row as it stands.
void commit(ui::Runtime& rt, ui::Control& grid, Data1& data) {
  ui::GridCells& g = grid.grid;
  const int row = g.row, col = g.col;
  if (!data.open || row < g.fixed_rows || row >= g.rows || col < 0 || col >= g.cols) return;
  store::Recordset& rs = data.rows;
  rs.set_bookmark(row - g.fixed_rows);
  try {
    rs.edit();
    rs[col] = ui::column_value(g.cell(row, col));
    rs.update();
  } catch (const Error& e) {
    rs.cancel_update();
    rt.message(e.what());
  }
  g.cell(row, col) = rs[col].text();
}

}  // namespace

std::unique_ptr<ui::Form> make_deve(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "deve", "ACERTOS");
  ui::Form& f = *form;
  auto data = std::make_shared<Data1>();
  for (size_t i = 0; i < std::size(kInstructions); ++i)
    f.add("Label" + std::to_string(i + 1), ControlKind::Label, kInstructions[i]);
  ui::add_field(f, "EE3", ControlKind::ComboBox, "FORNECEDOR");
  ui::Control& gr = ui::add_field(f, "GR", ControlKind::TextBox, "REFERÊNCIA");
  gr.on_lost_focus = [&gr] { gr.set_text(format(Value(gr.text()), "0000")); };
  f.add("Command1", ControlKind::Button, "< BUSCA").on_click = [&f, data] { search(f, *data); };
  f.add("LDBGrid1", ControlKind::Label, "RELAÇÃO DAS ENTRADAS REGISTRADAS").bold = true;
  ui::Control& grid = f.add("DBGrid1", ControlKind::BoundGrid);
  grid.database_name = "\\entra.mdb";
  grid.on_change = [&rt, &grid, data] { commit(rt, grid, *data); };
  f.add("Command5", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("deve"); };
  f.on_load = [&rt, &f] {
    rt.centre(f);
    ui::name_combo(f["EE3"], supplier_cards());
  };
  return form;
}

}  // namespace mz::stock
