// Contas: enters accounts to pay and to receive by hand and shows the day's
// settled movement with its totals; its second tab shows the sales of a
// period by payment form and by seller, and its Relatórios menu prints the
// commissions, the account reports and the day closing. Settling, altering
// and deleting an account on file go through BUSCON and bxx.
#include <memory>
#include <optional>

#include "core/regional.h"
#include "finance/contas/closing_commissions.h"
#include "finance/contas/closing_ticket.h"
#include "finance/contas/entry.h"
#include "finance/contas/movement.h"
#include "finance/screens.h"
#include "records/c2.h"
#include "ui/fields.h"

namespace mz::finance {

using namespace contas;
using ui::ControlKind;

namespace {

// The items of "Relatórios": the commission report, the account reports,
// the day closing in its two modes, and the sales results.
void add_reports_menu(ui::Runtime& rt, ui::Form& f) {
  f.add("FFDD", ControlKind::MenuItem, "Relatório de comissão").on_click = [&rt, &f] { print_commissions(rt, f); };
  f.add("hjuiui", ControlKind::MenuItem, "Contas a pagar e receber").on_click = [&rt] { rt.show("Impecon"); };
  f.add("Mo", ControlKind::MenuItem, "Vendas do dia - Modo DOS").on_click = [&rt, &f] {
    print_closing(rt, f, TicketMode::Dos);
  };
  f.add("sddssds", ControlKind::MenuItem, "Vendas do dia - Modo Gráfico").on_click = [&rt, &f] {
    print_closing(rt, f, TicketMode::Graphic);
  };
  f.add("ikolp", ControlKind::MenuItem, "Resultados").on_click = [&rt] { rt.show("Prod"); };
}

void add_menus(ui::Runtime& rt, ui::Form& f) {
  f.add("sds", ControlKind::MenuItem, "Grava").on_click = [&rt, &f] { record(rt, f); };
  f.add("asasss", ControlKind::MenuItem, "Novo").on_click = [&rt, &f] { clear_entry(rt, f); };
  f.add("dfdf", ControlKind::MenuItem, "Relança").on_click = [&rt, &f] { reissue_last(rt, f); };
  f.add("fgfg", ControlKind::MenuItem, "Apaga").on_click = [&rt, &f] { remove_picked(rt, f); };
  f.add("wewe", ControlKind::MenuItem, "Busca").on_click = [&rt] { rt.show("BUSCON"); };
  add_reports_menu(rt, f);
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
  add_commissions_tab(rt, f);
  add_menus(rt, f);

  f.on_load = [&rt, &f] {
    rt.centre(f);
    load_lists(f);
    start_entry(rt, f);
    show_day(rt, f);
    start_commissions(rt, f);
  };
  return form;
}

}  // namespace mz::finance
