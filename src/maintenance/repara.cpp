// REPARA: the repair and compaction of the database files, all of them or
// the one chosen.
#include <memory>

#include "maintenance/files.h"
#include "maintenance/hourglass.h"
#include "maintenance/repair.h"
#include "maintenance/screens.h"
#include "store/database.h"
#include "ui/fields.h"

namespace mz::maintenance {

using ui::ControlKind;

namespace {

std::string damaged(const std::string& name) {
  return "O banco de dados " + name +
         " está danificado e não foi reparado: a verificação de integridade encontrou erros. O arquivo foi "
         "mantido como estava; restaure-o de um backup.";
}

bool repaired(ui::Runtime& rt, const std::string& name) {
  RepairOutcome outcome;
  {
    Hourglass wait(rt);
    outcome = repair_database(store::Workspace::folder() / name);
  }
  if (outcome == RepairOutcome::Repaired) return true;
  rt.message(damaged(name), ui::Buttons::Ok, ui::Icon::Critical);
  return false;
}

void repair_all(ui::Runtime& rt, ui::Form& f) {
  const std::vector<std::string> files = f["File1"].items;
  if (files.size() > 1) {
    if (rt.message("Deseja reparar os " + std::to_string(files.size()) + " Bancos de Dados existentes?",
                   ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
      return;
  } else if (files.size() == 1) {
    if (rt.message("Deseja reparar o Banco de Dado existente?", ui::Buttons::YesNo, ui::Icon::Question) !=
        ui::Answer::Yes)
      return;
  }
  ui::Control& done = f["List1"];
  done.items.clear();
  bool all_whole = true;
  for (const std::string& name : files) {
    if (skipped_by_repair(name)) continue;
    if (repaired(rt, name)) done.items.push_back(name);
    else all_whole = false;
  }
  if (all_whole) rt.message("Operação realizada com sucesso.");
}

void repair_chosen(ui::Runtime& rt, ui::Form& f) {
  ui::Control& list = f["File1"];
  if (list.list_index < 0 || list.list_index >= static_cast<int>(list.items.size()))
    return (void)rt.message("Selecione o Banco de dados a ser reparado.");
  if (repaired(rt, list.items[list.list_index])) rt.message("Banco de Dados reparado com sucesso.");
}

}  // namespace

std::unique_ptr<ui::Form> make_repara(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "REPARA", "Manutenção");
  ui::Form& f = *form;
  ui::add_field(f, "File1", ControlKind::ListBox, "BANCOS DE DADOS :").on_dbl_click = [&rt, &f] {
    repair_chosen(rt, f);
  };
  ui::add_field(f, "List1", ControlKind::ListBox, "BANCOS DE DADOS REPARADOS:");
  ui::Control& next = ui::add_field(f, "A2", ControlKind::MaskedBox, "PRÓXIMA MANUTENÇÃO:");
  next.mask = "##/##/####";
  next.enter_moves_on = true;
  f.add("Command3", ControlKind::Button, "&REPARAR").on_click = [&rt, &f] { repair_all(rt, f); };
  f["Command3"].tooltip = "Repara e Compacta.";
  f.add("Command4", ControlKind::Button, "&VOLTA").on_click = [&rt] { rt.close("REPARA"); };
  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["File1"].items = database_files(store::Workspace::folder());
  };
  return form;
}

}  // namespace mz::maintenance
