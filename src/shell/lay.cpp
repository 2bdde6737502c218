// lay: the choice of the main screen, read only at start.
#include "shell/screens.h"
#include "store/database.h"

namespace mz::shell {

using ui::ControlKind;

std::unique_ptr<ui::Form> make_lay(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "lay", "Define Layout");
  ui::Form& f = *form;
  f.add("Option1", ControlKind::OptionButton, "Layout 1");
  f.add("Option2", ControlKind::OptionButton, "Layout 2");
  auto grava = [&rt, &f] {
    store::Recordset rs = store::Workspace::open_database("\\lay.Mdb").open_recordset("Select * From lay");
    rs.edit();
    if (f["Option1"].checked()) rs["lay"] = "1";
    else if (f["Option2"].checked()) rs["lay"] = "2";
    else rs["lay"] = rs["lay"].value();  // neither set: the old value goes back
    rs.update();
    rt.message("Operação realizada, o software será fechado para validar a alteração.");
    rt.end_program();
  };
  auto volta = [&rt] { rt.close("lay"); };
  ui::add_action(f, "Command16", "fghf", "Grava", grava);
  ui::add_action(f, "Command7", "dfgf", "Volta", volta);
  f.on_load = [&f] {
    store::Recordset rs = store::Workspace::open_database("\\lay.Mdb").open_recordset("Select * From lay");
    if (!rs.eof() && rs["lay"].text() == "1") f["Option1"].set_checked(true);
  };
  return form;
}

}  // namespace mz::shell
