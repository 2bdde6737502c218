// FORNECOD: the suppliers by name, for the product card to take a
// supplier's code from.
#include <memory>

#include "stock/screens.h"
#include "store/database.h"
#include "ui/fields.h"

namespace mz::stock {

std::unique_ptr<ui::Form> make_fornecod(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "FORNECOD", "Lista de código de fornecedores");
  ui::Form& f = *form;
  ui::Control& grid = f.add("Grid2", ui::ControlKind::Grid);
  grid.on_dbl_click = [&rt, &grid] {
    std::string code = ui::chosen_key(grid);
    if (code.empty()) return;  // the heading
    ui::Control& supplier_code = rt.screen("PRODUTO")["E3"];
    supplier_code.set_text(code);
    rt.close("FORNECOD");
    rt.set_focus(supplier_code);
  };
  f.on_load = [&rt, &f, &grid] {
    rt.centre(f);
    std::vector<std::vector<std::string>> rows;
    store::Database db = store::Workspace::open_database("\\FORNEX.Mdb");
    for (store::Recordset rs = db.open_recordset("SELECT* FROM CLI order BY a2"); !rs.eof(); rs.move_next())
      rows.push_back({rs["a1"].text(), rs["a2"].text()});
    ui::show_rows(grid, {"CÓDIGO", "NOME"}, rows);
  };
  return form;
}

}  // namespace mz::stock
