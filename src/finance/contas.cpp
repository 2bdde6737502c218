// Contas: enters accounts to pay and to receive by hand and shows the day's
// settled movement with its totals. Settling, altering and deleting an
// account on file go through BUSCON and bxx.
#include <memory>
#include <optional>

#include "core/regional.h"
#include "finance/contas/entry.h"
#include "finance/contas/movement.h"
#include "finance/screens.h"
#include "records/c2.h"
#include "ui/fields.h"

namespace mz::finance {

using namespace contas;
using ui::ControlKind;

namespace {

// The commission tab and the printed reports are not built yet: each
// opens the screen that says so.
constexpr const char* kReportsScreen = "Impecon";

struct MenuEntry {
  const char* name;
  const char* caption;
  const char* screen;
};
// The items of "Relatórios", with the screen each opens for now.
constexpr MenuEntry kReports[] = {
    {"FFDD", "Relatório de comissão", kReportsScreen},
    {"hjuiui", "Contas a pagar e receber", "Impecon"},
    {"Mo", "Vendas do dia - Modo DOS", kReportsScreen},
    {"sddssds", "Vendas do dia - Modo Gráfico", kReportsScreen},
    {"ikolp", "Resultados", "Prod"},
};

void add_menus(ui::Runtime& rt, ui::Form& f) {
  f.add("sds", ControlKind::MenuItem, "Grava").on_click = [&rt, &f] { record(rt, f); };
  f.add("asasss", ControlKind::MenuItem, "Novo").on_click = [&rt, &f] { clear_entry(rt, f); };
  f.add("dfdf", ControlKind::MenuItem, "Relança").on_click = [&rt, &f] { reissue_last(rt, f); };
  f.add("fgfg", ControlKind::MenuItem, "Apaga").on_click = [&rt, &f] { remove_picked(rt, f); };
  f.add("wewe", ControlKind::MenuItem, "Busca").on_click = [&rt] { rt.show("BUSCON"); };
  for (const MenuEntry& item : kReports)
    f.add(item.name, ControlKind::MenuItem, item.caption).on_click = [&rt, screen = item.screen] { rt.show(screen); };
  f.add("yjkio", ControlKind::MenuItem, "Volta").on_click = [&rt] { rt.close("Contas"); };
}

}  // namespace

std::unique_ptr<ui::Form> make_contas(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "Contas", "Caixa - Contas");
  ui::Form& f = *form;
  ui::Control& tabs = f.add("SSTab1", ControlKind::Tabs);
  tabs.items = {"01- Caixa", "02- Comissões"};
  tabs.set_list_index(0);
  tabs.tab_stop = false;
  tabs.on_click = [&rt, &tabs] {
    if (tabs.list_index == 0) return;
    tabs.set_list_index(0);
    rt.show(kReportsScreen);
  };

  add_entry(f);
  // The hand pictures beside the types and the histories.
  f.add("Image1", ControlKind::Image, "☞ TIPO").on_click = [&rt] {
    records::show_option_screen(rt, "CADASTRO DE TIPO");
  };
  f.add("Image2", ControlKind::Image, "☞ HISTÓRICO").on_click = [&rt] {
    records::show_option_screen(rt, "CADASTRO DE HISTÓRICOS");
  };
  f.add("Command3", ControlKind::Button, "Movimento do dia").on_click = [&rt, &f] {
    // Credits of the date typed in D2, debits of today, as the button always did.
    std::optional<Date> typed = parse_date(ui::stored_date(f["D2"].text()));
    show_movement(f, typed, rt.host().today().date_only());
  };
  ui::Control& day = f.add("Grid1", ControlKind::Grid);
  day.on_dbl_click = [&f] { pick_row(f); };
  ui::add_field(f, "D11", ControlKind::Label, "TOTAL DE CRÉDITOS:");
  ui::add_field(f, "D11X", ControlKind::Label, "TOTAL DE DÉBITOS:");
  ui::add_field(f, "SL", ControlKind::Label, "TOTAL SALDO:");
  f.add("BARRA", ControlKind::Label);
  add_menus(rt, f);

  f.on_load = [&rt, &f] {
    rt.centre(f);
    load_lists(f);
    start_entry(rt, f);
    show_day(rt, f);
  };
  return form;
}

}  // namespace mz::finance
