// fone: the customers' telephones at a glance, for use while attending the
// phone; the list narrows to the names (or the other telephone) that hold
// what is typed anywhere in them.
#include <memory>

#include "maintenance/screens.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::maintenance {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"Nome", "Telefone", "Telefone da empresa"};

void show_customers(ui::Form& f, const std::string& sql) {
  std::vector<std::vector<std::string>> rows;
  // The look-up passes a connection text; the customers' file has no password and ignores it.
  store::Database db = store::Workspace::open_database("\\CADA.MDB", ";Pwd=VAULTX");
  for (store::Recordset rs = db.open_recordset(sql); !rs.eof(); rs.move_next())
    rows.push_back({rs["A1"].text(), rs["A4"].text(), rs["D3"].text()});
  ui::show_rows(f["Grid1"], kHeading, rows);
}

void narrow(ui::Form& f) {
  const char* column = f["Option2"].checked() ? "A6" : "A1";
  show_customers(f, std::string("Select * From cada where ") + column + " LIKE " +
                        store::sql_quote("*" + f["TEXT1"].text() + "*"));
}

}  // namespace

std::unique_ptr<ui::Form> make_fone(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "fone", "Telefones");
  ui::Form& f = *form;
  ui::Control& text = ui::add_field(f, "TEXT1", ControlKind::TextBox, "Pesquisa:");
  text.enter_moves_on = true;
  text.on_change = [&f] { narrow(f); };
  for (const auto& [name, caption] : {std::pair{"Option1", "Por nome"}, std::pair{"Option2", "Pelo outro telefone"}}) {
    ui::Control& option = f.add(name, ControlKind::OptionButton, caption);
    option.group = "list";
    option.on_click = [&f] { narrow(f); };
  }
  f.add("Grid1", ControlKind::Grid);
  f.add("Command1", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("fone"); };
  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["Option1"].set_checked(true);
    show_customers(f, "Select * From cada ORDER BY A1");
  };
  return form;
}

}  // namespace mz::maintenance
