// INICIO: the main screen of layout 1, with the modules on F1 to F4.
#include "core/error.h"
#include "core/format.h"
#include "shell/screens.h"
#include "store/database.h"
#include "ui/keys.h"

namespace mz::shell {

using ui::ControlKind;

std::unique_ptr<ui::Form> make_inicio(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "INICIO", "Software Mostruz");
  ui::Form& f = *form;
  f.add("NOME", ControlKind::Label);
  f.add("DOC", ControlKind::Label);
  struct Item {
    const char* label;
    const char* image;
    const char* title;
    const char* text;
    const char* hint;
  };
  const Item items[] = {
      {"CC1", "img_menu_1", "Cadastros", "Grade, Produtos, Clientes, Fornecedores.", "Tecle F1 para acessar o módulo."},
      {"Label3", "img_menu_2", "Vendas", "Registro de vendas, ticke e carnê.", "Tecle F2 para acessar o módulo."},
      {"Label9", "img_menu_4", "Financeiro", "Caixa, contas, resultados.", "Tecle F3 para acessar o módulo."},
      {"Label12", "img_menu_6", "Operacional", "Empresa, backup, manutenção, Etc.", "Tecle F4 para acessar o módulo."},
  };
  for (int i = 0; i < 4; ++i) {
    auto open = [&rt, i] { open_module(rt, i); };
    ui::Control& title = f.add(items[i].label, ControlKind::Label, items[i].title);
    title.on_click = open;
    title.bold = true;
    f.add(items[i].image, ControlKind::Image).on_click = open;
    f.add(std::string(items[i].label) + "_texto", ControlKind::Label, items[i].text);
    f.add(std::string(items[i].label) + "_tecla", ControlKind::Label, items[i].hint);
  }
  // The support picture in the corner, placed by the form's height.
  f.add("Image2", ControlKind::Image, "Suporte On-Line").on_click = [&rt] { rt.show("msn"); };
  f.add("Command3", ControlKind::Button, "Manual").on_click = [&rt] { rt.host().start_program("Ajuda.exe"); };
  f.key_preview = true;
  f.on_key_down = [&rt](int& key, int) {
    if (key >= ui::key::kF1 && key < ui::key::kF1 + 4) open_module(rt, key - ui::key::kF1);
  };
  f.on_load = [&rt, &f] {
    rt.centre(f);
    f.caption = "Software Mostruz - " + format(Value(rt.host().today()), "dd/mm/yyyy");
    try {  // a missing identity leaves the labels as they are
      store::Recordset rs = store::Workspace::open_database("\\empe.Mdb").open_recordset("Select * From empe order by a1");
      if (!rs.eof()) {
        f["NOME"].set_text(rs["a1"].text());
        f["DOC"].set_text(rs["A2"].text());
      }
    } catch (const Error&) {
    }
    f["DOC"].set_text("Tel: " + f["DOC"].text());
  };
  f.on_unload = [&rt] { rt.end_program(); };
  return form;
}

}  // namespace mz::shell
