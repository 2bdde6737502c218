// PEDIDO: commercial orders. An order is a document of the goods-out ledger
// with a customer, its addresses and a position; its lines are keyed in the
// same band as ENTRADA's.
#include "stock/pedido.h"

#include <functional>
#include <memory>

#include "stock/entrada/band.h"
#include "stock/entrada/document.h"
#include "stock/labels.h"
#include "stock/pedido/heading.h"
#include "stock/pedido/order.h"
#include "ui/fields.h"
#include "ui/keys.h"
#include "ui/menu.h"
#include "ui/report.h"

namespace mz::stock {

using ui::ControlKind;

namespace {

constexpr int kLinesPage = 1;
constexpr int kTotalsPage = 2;

void on_page(ui::Form& f, size_t first, int page) {
  for (size_t i = first; i < f.controls().size(); ++i) f.controls()[i]->page = page;
}

void add_totals(ui::Form& f) {
  size_t first = f.controls().size();
  ui::add_field(f, "nr", ControlKind::Label, "TL.PEÇAS");
  ui::add_field(f, "TL", ControlKind::Label, "TOTAL PROD.");
  ui::money_field(ui::add_field(f, "DES", ControlKind::TextBox, "DESC"), [&f] { pedido::apply_discount(f); });
  ui::add_field(f, "TT", ControlKind::Label, "TOTAL");
  on_page(f, first, kTotalsPage);
}

void print_labels(ui::Runtime& rt, ui::Form& f) { generate_labels(rt, "\\SAI.MDB", f["EE1"].text(), f["Grid1"]); }

void add_menu(ui::Runtime& rt, ui::Form& f, const std::shared_ptr<ui::Report>& report) {
  ui::add_menu_items(f, {
      {"rft", "&Grava", 2, [&rt, &f] { pedido::record(rt, f); }},
      {"hjjk", "&Limpa", 0, [&rt, &f] { pedido::new_order(rt, f); }},
      {"bgtr", "&Exclui", 0, [&rt, &f] { pedido::remove_order(rt, f); }},
      {"cdws", "&Entrada", 0, [&rt, &f] { pedido::copy_to_entrada(rt, f); }},
      {"axcb", "&Imprime", 0, [&f, report] { pedido::print_order(f, *report, "\\PEDIDO.rpt"); }},
      {"ImprimeResumo", "Imprime &resumo", 0, [&f, report] { pedido::print_order(f, *report, "\\PEDIDO2.rpt"); }},
      {"ujik", "&Volta", 6, [&rt] { rt.close("PEDIDO"); }},
  });
}

}  // namespace

std::unique_ptr<ui::Form> make_pedido(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "PEDIDO", "COMPRA / PEDIDO");
  ui::Form& f = *form;
  auto report = std::make_shared<ui::Report>(rt, print::Destination::Window);
  ui::Control& tabs = f.add("SSTab1", ControlKind::Tabs);
  tabs.items = {"1º Parte", "2º Parte", "3º Parte"};
  tabs.tab_stop = false;
  pedido::add_heading(rt, f, [&rt, &f] { pedido::open_order(rt, f); });
  size_t band_start = f.controls().size();
  band::add_band(rt, f, kLinesPage);
  ui::add_field(f, "ITEM", ControlKind::Label, "ITEM");
  on_page(f, band_start, kLinesPage);
  add_totals(f);
  add_menu(rt, f, report);
  ui::follow_pages(f);

  // F1 launches the line from any field, F4 makes the labels of the order,
  // F5 keeps the payment forms; the other keys reach their menu items.
  f.key_preview = true;
  f.on_key_down = [&rt, &f](int& key, int) {
    if (key == ui::key::kF1) {
      key = 0;
      band::launch_line(rt, f);
    } else if (key == ui::key::kF1 + 3) {
      key = 0;
      print_labels(rt, f);
    } else if (key == ui::key::kF1 + 4) {
      key = 0;
      pedido::maintain_payment_forms(rt, f);
    }
  };
  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["SSTab1"].set_list_index(pedido::kHeadingPage);
    band::load_band(f);
    pedido::load_heading(f);
    f["DES"].set_text("0,00");
    f["EE2"].set_text(ui::today_text(rt));
    f["EE1"].set_text(document::next_number(document::kExit));
    // The number is already the next one: the clerk starts at the order's own number.
    f.last_focus = &f["EE4"];
  };
  return form;
}

}  // namespace mz::stock
