// FORNE: the supplier register. The card, the list of suppliers and the
// contact persons lie on three tabs of SSTab1.
#include <memory>

#include "records/option_list.h"
#include "stock/forne/card.h"
#include "stock/forne/contacts.h"
#include "stock/forne/navigation.h"
#include "stock/screens.h"
#include "ui/fields.h"
#include "ui/keys.h"

namespace mz::stock {

using namespace forne;
using ui::ControlKind;

namespace {

// c1: the card and its contacts are kept, each statement passed over when
// it fails, and the screen starts a new card.
void record(ui::Runtime& rt, ui::Form& f) {
  if (f["A2"].text().empty()) {
    rt.message("O campo Razão Social, não pode ficar em branco.");
    return rt.set_focus(f["A2"]);
  }
  ui::resume_style([&] { record_card(f); });
  ui::resume_style([&] { save_contacts(f["Grid1"], f["A1"].text()); });
  rt.message(" Operação realizada com  sucesso.", ui::Buttons::Ok, ui::Icon::Information);
  ui::resume_style([&] { clear_card(rt, f); });
}

// c3: the supplier and its contacts go; ledger rows that name it stay.
void remove(ui::Runtime& rt, ui::Form& f) {
  if (f["A2"].text().empty()) {
    rt.message("Faça a busca do cadastro para depois excluir.");
    return rt.set_focus(f["A2"]);
  }
  if (rt.message("Confirma exclusão?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes) return;
  std::string code = f["A1"].text();
  ui::resume_style([&] {
    store::Database db = suppliers();
    store::Recordset rs = supplier_row(db, code);
    if (!rs.eof()) rs.delete_current();
  });
  ui::resume_style([&] { delete_contacts(code); });
  ui::resume_style([&] { clear_card(rt, f); });
}

// A double click on Grid2 looks the supplier up by its name, as leaving A2
// does, back on the card's tab.
void pick(ui::Runtime& rt, ui::Form& f) {
  const ui::GridCells& g = f["Grid2"].grid;
  if (g.row < 1 || g.row >= g.rows) return;
  f["A2"].set_text(g.cell(g.row, 1));
  rt.set_focus(f["A2"]);
  rt.press_key(ui::key::kTab);
  f["SSTab1"].set_list_index(kCardPage);
}

}  // namespace

std::unique_ptr<ui::Form> make_forne(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "FORNE", "Fornecedores");
  ui::Form& f = *form;
  ui::Control& tabs = f.add("SSTab1", ControlKind::Tabs);
  tabs.items = {"Cadastro", "Lista", "Contatos"};
  tabs.set_list_index(kCardPage);
  tabs.tab_stop = false;

  add_card(rt, f);
  f.add("nr", ControlKind::Label);
  f.add("c1", ControlKind::Button, "Grava ").on_click = [&rt, &f] { record(rt, f); };
  f.add("c2", ControlKind::Button, "Novo").on_click = [&rt, &f] { clear_card(rt, f); };
  f.add("c3", ControlKind::Button, "Apaga  ").on_click = [&rt, &f] { remove(rt, f); };
  f.add("c5", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("FORNE"); };
  add_navigation(rt, f);
  // The carriers: the list reloaded, and the one box that adds or removes a name.
  f.add("Command8", ControlKind::Button, "Atualiza").on_click = [&f] {
    f["A24"].items = records::list_items(records::lists::kCarriers);
  };
  f.add("Command13", ControlKind::Button, "Transportadoras").on_click = [&rt, &f] {
    records::add_or_remove(rt, records::lists::kCarriers, f["A24"]);
  };

  ui::Control& list = f.add("Grid2", ControlKind::Grid);
  list.page = kListPage;
  list.on_dbl_click = [&rt, &f] { pick(rt, f); };

  add_contacts(rt, f);

  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["A24"].items = records::list_items(records::lists::kCarriers);
    clear_card(rt, f);
  };
  return form;
}

}  // namespace mz::stock
