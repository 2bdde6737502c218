// AUTO: the backup of every database file and report template into a folder
// of the day, and putting a backup back.
#include <algorithm>
#include <memory>

#include "maintenance/backup.h"
#include "maintenance/hourglass.h"
#include "maintenance/screens.h"
#include "store/database.h"
#include "ui/fields.h"

namespace mz::maintenance {

using ui::ControlKind;

namespace {

const std::string kDone =
    "O backup foi realizado com sucesso.\n"
    "Foi criado uma sub-pasta com a data de hoje e salvo os bancos de dados, dentro desta pasta.\n"
    "Recomenda-se copiar esta sub-pasta para um disco externo ou pen-drive, para que não seja perdida nenhuma "
    "informação em caso de problemas com o computador.";

void list_backups(ui::Form& f) {
  ui::Control& list = f["Combo1"];
  list.items = backups(store::Workspace::folder());
  list.list_index = -1;
  list.set_text("");
}

void realiza_backup(ui::Runtime& rt, ui::Form& f) {
  ui::Control& count = f["QTDE"];
  count.set_text("0");
  {
    Hourglass wait(rt);
    store::Workspace::close_all();
    make_backup(store::Workspace::folder(), backup_name(rt.host().today()),
                [&count](int copied) { count.set_text(std::to_string(copied)); });
  }
  list_backups(f);
  rt.message(kDone, ui::Buttons::Ok, ui::Icon::Information);
}

void restaura_backup(ui::Runtime& rt, ui::Form& f) {
  const std::string& name = f["Combo1"].text();
  const auto& known = f["Combo1"].items;
  if (std::find(known.begin(), known.end(), name) == known.end())
    return (void)rt.message("Selecione o backup a ser restaurado.");
  const auto& folder = store::Workspace::folder();
  std::string safety = safety_backup_name(folder, rt.host().now());
  if (rt.message("Deseja restaurar o " + name + "?\nOs dados atuais serão substituídos pelos do backup; antes disso, "
                 "eles serão salvos na sub-pasta " + safety + ".",
                 ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
    return;
  {
    Hourglass wait(rt);
    restore_backup(folder, name, safety);
  }
  list_backups(f);
  rt.message("O backup foi restaurado com sucesso.\nOs dados anteriores foram salvos na sub-pasta " + safety + ".",
             ui::Buttons::Ok, ui::Icon::Information);
}

}  // namespace

std::unique_ptr<ui::Form> make_auto(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "AUTO", "Backup Automático");
  ui::Form& f = *form;
  ui::add_field(f, "Text1", ControlKind::TextBox, "Data:").enabled = false;
  ui::add_field(f, "QTDE", ControlKind::TextBox, "Arquivos:").enabled = false;
  f.add("Command1", ControlKind::Button, "> Realiza backup").on_click = [&rt, &f] { realiza_backup(rt, f); };
  f["Command1"].tooltip = "Clique aqui para iniciar o backup.";
  ui::add_field(f, "Combo1", ControlKind::ComboBox, "Backups:").enter_moves_on = true;
  f.add("Command2", ControlKind::Button, "> Restaura backup").on_click = [&rt, &f] { restaura_backup(rt, f); };
  f.add("Command4", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("AUTO"); };
  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["Text1"].set_text(ui::today_text(rt));
    f["QTDE"].set_text("0");
    list_backups(f);
  };
  return form;
}

}  // namespace mz::maintenance
