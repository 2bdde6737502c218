// ini2: the main screen of layout 2, picture buttons with a menu item each.
#include "shell/screens.h"
#include "store/database.h"

namespace mz::shell {

using ui::ControlKind;

std::unique_ptr<ui::Form> make_ini2(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "ini2", "Software Mostruz");
  ui::Form& f = *form;
  f.add("nome", ControlKind::Label);
  struct Module {
    const char* button;
    const char* item;
    const char* text;
    std::function<void()> open;
  };
  const Module modules[] = {
      {"Command6", "dfdf", "Cadastros", [&rt] { open_module(rt, 0); }},
      {"Command7", "hhgg", "Vendas", [&rt] { open_module(rt, 1); }},
      {"Command8", "fdfd", "Financeiro  ", [&rt] { open_module(rt, 2); }},
      {"Command11", "hjhjhj", "Operacional", [&rt] { open_module(rt, 3); }},
      {"Command14", "kjkjk", "Saída", [&rt] { rt.end_program(); }},
  };
  for (const auto& m : modules) f.add(m.button, ControlKind::Button, m.text).on_click = m.open;
  for (const auto& m : modules) f.add(m.item, ControlKind::MenuItem, m.text).on_click = m.open;
  f.add("Command12", ControlKind::Button, "Suporte").on_click = [&rt] { rt.show("msn"); };
  f.on_load = [&f] {
    store::Recordset rs = store::Workspace::open_database("\\EMPE.Mdb").open_recordset("SELECT* FROM EMPE ORDER BY A1");
    if (!rs.eof()) f["nome"].set_text(rs["a1"].text());
  };
  f.on_unload = [&rt] { rt.end_program(); };
  return form;
}

}  // namespace mz::shell
