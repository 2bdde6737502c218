// c2: one screen that adds to and deletes from the option lists of the
// accounts screen; the title in NOME says which list.
#include "records/c2.h"

#include <memory>

#include "records/option_list.h"
#include "records/screens.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::records {

using ui::ControlKind;

namespace {

struct TitledList {
  const char* title;
  OptionList list;
  const char* contas_combo;  // the combo of Contas that shows the list, if any
};

constexpr TitledList kLists[] = {
    {"CADASTRO DE TIPO", {"\\C7.Mdb", "A1", "A1", ""}, "D7"},
    {"CADASTRO DE HISTÓRICOS", {"\\C8.Mdb", "A1", "A1", ""}, "D6"},
    {"CADASTRO DE PLANO DE CONTAS", {"\\C6.Mdb", "A1", "A1", ""}, nullptr},
};
// Opened with no caller, the screen keeps the chart of accounts.
constexpr const char* kUncalledTitle = "CADASTRO DE PLANO DE CONTAS";

// The list the title names; any other title names none, and then the
// screen does nothing.
const TitledList* titled_list(const ui::Form& f) {
  for (const TitledList& entry : kLists)
    if (f["NOME"].text() == entry.title) return &entry;
  return nullptr;
}

store::Recordset option_row(store::Database& db, const std::string& text) {
  return db.open_recordset("SELECT* FROM A1 where A1 = " + store::sql_quote(text));
}

// The accounts screen, when it is open, shows the changed list at once.
void refresh_contas(ui::Runtime& rt, const TitledList& entry) {
  if (!entry.contas_combo || !rt.is_shown("Contas")) return;
  ui::Control* combo = rt.screen("Contas").find(entry.contas_combo);
  if (!combo) return;
  combo->set_text("");
  combo->list_index = -1;
  combo->items = list_items(entry.list);
}

}  // namespace

std::unique_ptr<ui::Form> make_c2(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "c2", "Cadastro");
  ui::Form& f = *form;
  f.add("NOME", ControlKind::Label, kUncalledTitle).bold = true;
  f.add("DigiteANovaOpcaoEInclua", ControlKind::Label, "Digite a nova opção e inclua:");
  ui::Control& option = f.add("Text1", ControlKind::ComboBox);
  f.add("TT", ControlKind::Label);
  option.on_got_focus = [&rt, &f, &option] {
    const TitledList* entry = titled_list(f);
    if (!entry) return;
    ui::jump_style(rt, [&] { option.items = list_items(entry->list); });
  };

  // A text already on the list is not added again, and the user hears of
  // success all the same; a blank text is no option and adds nothing.
  f.add("Command1", ControlKind::Button, "&Inclui").on_click = [&rt, &f, &option] {
    const TitledList* entry = titled_list(f);
    if (!entry || option.text().empty()) return;
    ui::jump_style(rt, [&] {
      store::Database db = store::Workspace::open_database(entry->list.file);
      store::Recordset rs = option_row(db, option.text());
      if (rs.eof()) {
        rs.add_new();
        rs["A1"] = Value(option.text());
        rs.update();
      }
      rs.close();
      refresh_contas(rt, *entry);
      rt.message("Inclusão realizada com sucesso.");
    });
  };
  // Deleting a text that is not on the list reports success too.
  f.add("Command2", ControlKind::Button, "&Apaga").on_click = [&rt, &f, &option] {
    const TitledList* entry = titled_list(f);
    if (!entry) return;
    ui::jump_style(rt, [&] {
      store::Database db = store::Workspace::open_database(entry->list.file);
      store::Recordset rs = option_row(db, option.text());
      if (!rs.eof()) rs.delete_current();
      rs.close();
      refresh_contas(rt, *entry);
      rt.message("Exclusão realizada com sucesso.");
    });
  };
  f.add("Command3", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("c2"); };

  f.on_load = [&rt, &f] { rt.centre(f); };
  return form;
}

void show_option_screen(ui::Runtime& rt, const std::string& title) {
  rt.screen("c2")["NOME"].set_text(title);
  rt.show("c2");
}

}  // namespace mz::records
