// VERI: never seen; reads the layout choice and hands over to a main screen.
#include "shell/screens.h"
#include "store/database.h"

namespace mz::shell {

std::unique_ptr<ui::Form> make_veri(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "VERI", "");
  form->on_load = [&rt] {
    store::Database db = store::Workspace::open_database("\\lay.Mdb");
    store::Recordset rs = db.open_recordset("Select * From lay");
    if (rs.eof()) return;  // a damaged choice: no main screen comes up
    std::string layout = rs["lay"].text();
    if (layout == "1") rt.show("INICIO");
    else if (layout == "2") rt.show("ini2");
  };
  return form;
}

}  // namespace mz::shell
