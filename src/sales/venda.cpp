// VENDA: the counter sale. Items are scanned into Grid1 on the first tab,
// the sale is closed, recorded or reversed on the second; the third searches
// and recalls sales, the fourth lists a customer's purchases. Function keys
// reach the tabs and the main buttons from any field.
#include <functional>
#include <memory>

#include "sales/printing.h"
#include "sales/screens.h"
#include "sales/size_fields.h"
#include "sales/venda/closing.h"
#include "sales/venda/history.h"
#include "sales/venda/items.h"
#include "sales/venda/recording.h"
#include "sales/venda/reversal.h"
#include "sales/venda/search.h"
#include "sales/venda/sale.h"
#include "ui/fields.h"
#include "ui/keys.h"
#include "ui/menu.h"

namespace mz::sales {

using ui::ControlKind;

namespace {

// The first two tabs put the focus where the clerk starts on them; the search
// and history tabs wait for their buttons.
void choose_tab(ui::Runtime& rt, ui::Form& f) {
  switch (f["SSTab1"].list_index) {
    case venda::kItemsPage: return venda::go_to_items(rt, f);
    case venda::kClosingPage: return venda::go_to_closing(rt, f);
    default: return;
  }
}

// The main buttons stand below the tabs, in view on every tab.
void add_main_buttons(ui::Runtime& rt, ui::Form& f) {
  f.add("Command10", ControlKind::Button, "04- Fechamento  ").on_click = [&rt, &f] { venda::go_to_closing(rt, f); };
  f.add("Command2", ControlKind::Button, "01- Grava venda").on_click = [&rt, &f] { venda::record_sale(rt, f); };
  f.add("Command7", ControlKind::Button, "02- Nova venda").on_click = [&rt, &f] { venda::new_sale(rt, f); };
}

void add_closing_buttons(ui::Runtime& rt, ui::Form& f) {
  auto closing_button = [&f](const char* name, const char* caption, std::function<void()> action) {
    ui::Control& b = f.add(name, ControlKind::Button, caption);
    b.page = venda::kClosingPage;
    b.on_click = std::move(action);
  };
  closing_button("Command1", "02- Estorno", [&rt, &f] { venda::reverse_recalled_sale(rt, f); });
  closing_button("Command17", "03- Troca", [&rt] { rt.show("troca"); });
  closing_button("Command14", "03- Cupom A", [&rt, &f] { print_cupom_a(rt, read_sale(f)); });
  closing_button("Command15", "04- Cupom B", [&rt, &f] { print_cupom_b(rt, read_sale(f)); });
  closing_button("Command16", "05- Carnê", [&rt, &f] { print_carne(rt, read_sale(f)); });
  closing_button("Command21", "03- Impressão", [&rt] { rt.show("vendaimpre"); });
}

// The function keys, each also an item of the screen's menu.
void add_menu(ui::Runtime& rt, ui::Form& f) {
  ui::add_menu_items(f, {
      {"MenuVenda", "Venda", 1, [&rt, &f] { venda::go_to_items(rt, f); }},
      {"MenuFechamento", "Fechamento", 2, [&rt, &f] { venda::go_to_closing(rt, f); }},
      {"MenuNovoValor", "Novo valor", 3, [&rt, &f] { venda::ask_new_price(rt, f); }},
      {"MenuBuscaNome", "Busca por nome", 4, [&rt] { rt.show("BNOME"); }},
      {"MenuEstoque", "Ver estoque", 5, [&rt, &f] { venda::show_stock(rt, f); }},
      {"MenuGrava", "Grava venda", 6, [&rt, &f] { venda::record_sale(rt, f); }},
      {"MenuNovaVenda", "Nova venda", 7, [&rt, &f] { venda::new_sale(rt, f); }},
      {"MenuCupomA", "Cupom A", 8, [&rt, &f] { print_cupom_a(rt, read_sale(f)); }},
      {"MenuCupomB", "Cupom B", 9, [&rt, &f] { print_cupom_b(rt, read_sale(f)); }},
      {"MenuCarne", "Carnê", 10, [&rt, &f] { print_carne(rt, read_sale(f)); }},
      {"MenuImpressao", "Impressão", 11, [&rt] { rt.show("vendaimpre"); }},
      {"MenuFoto", "Foto", 12, [&rt, &f] { venda::show_photo(rt, f); }},
  });
}

}  // namespace

std::unique_ptr<ui::Form> make_venda(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "VENDA", "Venda - Balcão");
  ui::Form& f = *form;
  f.width = 1366;
  f.height = 740;
  ui::Control& tabs = f.add("SSTab1", ControlKind::Tabs);
  tabs.items = {"01- Venda", "02 - Fechamento", "03 - Pesquisa", "04- Histórico de compra do cliente"};
  tabs.tab_stop = false;
  tabs.on_click = [&rt, &f] { choose_tab(rt, f); };
  venda::add_items_tab(rt, f);
  venda::add_closing_tab(rt, f, [&rt, &f] { add_closing_buttons(rt, f); });
  venda::add_search_tab(rt, f);
  venda::add_history_tab(rt, f);
  add_main_buttons(rt, f);
  add_menu(rt, f);
  ui::follow_pages(f);

  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["SSTab1"].set_list_index(venda::kItemsPage);
    venda::load_search_dates(rt, f);
    f["DT"].set_text(ui::today_text(rt));
    venda::load_search_list(f);
    venda::fill_payment_forms(f);
    venda::fill_sellers(f);
    venda::load_search_sellers(f);
    venda::fill_customers(f);
    venda::load_search_customers(f);
    venda::reset_amounts(f);
    venda::load_history(f);
    venda::load_items(f);
    load_size_names(f);
    f.last_focus = &f["GR"];  // the clerk scans as soon as the screen shows
  };
  return form;
}

}  // namespace mz::sales
