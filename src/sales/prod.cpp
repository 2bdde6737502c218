// Prod: the sales of a period in three lists (products with cost and
// result, the ranking, every line), the totals before and after discount,
// the search by reference and the sellers' report.
#include <memory>

#include "core/format.h"
#include "core/input_helpers.h"
#include "sales/prod/results.h"
#include "sales/prod/seller_report.h"
#include "sales/results_screens.h"
#include "ui/fields.h"

namespace mz::sales {

using ui::ControlKind;

namespace {

const std::vector<std::string> kProducts = {"Qtde.",      "Ref.",        "Produto", "Tamanho",
                                            "Vl. unit.", "Custo unit.", "Total",   "Venda"};
const std::vector<std::string> kRanking = {"Qtde.", "Ref.", "Produto"};
const std::vector<std::string> kLines = {"Valor", "Nr. Venda", "Produto", "Data", "Cliente", "Vendedor", "Pagamento"};
constexpr const char* kStart = "01/01/2000";

prod::Period period(ui::Runtime& rt, ui::Form& f) { return prod::read_period(rt, f, "A2", "A3", kStart); }

void clear(ui::Form& f) {
  for (const char* name : {"T1", "T2", "T3"}) f[name].set_text("0,00");
  ui::show_rows(f["Grid1"], kProducts, {});
  ui::show_rows(f["Grid3"], kRanking, {});
  ui::show_rows(f["Grid4"], kLines, {});
}

void show_products(ui::Form& f, const prod::ProductTotals& totals) {
  ui::show_rows(f["Grid1"], kProducts, totals.rows);
  f["T1"].set_text(money(totals.cost));
  f["T2"].set_text(money(totals.sales));
  f["T3"].set_text(money(totals.sales - totals.cost));
}

void search(ui::Runtime& rt, ui::Form& f) {
  clear(f);
  rt.wait_pointer(true);
  const std::vector<prod::Line> lines = prod::period_lines(period(rt, f));
  ui::show_rows(f["Grid4"], kLines, prod::line_rows(lines));
  const prod::ProductTotals totals = prod::product_totals(lines, prod::Costs());
  show_products(f, totals);
  ui::show_rows(f["Grid3"], kRanking, prod::ranking(lines));
  const Currency charged = prod::charged_total(lines);
  f["TD"].set_text(money(charged));
  f["TTD"].set_text(money(totals.sales - charged));
  rt.wait_pointer(false);
}

void search_reference(ui::Runtime& rt, ui::Form& f) {
  const std::string reference = f["GR"].text();
  if (reference.empty()) return;  // no reference typed: nothing to narrow to
  for (const char* name : {"T1", "T2", "T3"}) f[name].set_text("0,00");
  show_products(f, prod::product_totals(prod::period_lines(period(rt, f), &reference), prod::Costs(), true));
  f["SSTab1"].set_list_index(0);
}

void add_total(ui::Form& f, const char* name, const char* caption) {
  ui::Control& total = ui::add_field(f, name, ControlKind::Label, caption);
  total.bold = true;
}

}  // namespace

std::unique_ptr<ui::Form> make_prod(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "Prod", "Busca - Vendas por Período");
  ui::Form& f = *form;
  f.width = 1200;
  f.height = 700;
  // Left empty, the first date starts the period at the earliest sales.
  ui::Control& from = ui::add_field(f, "A2", ControlKind::MaskedBox, "DATA INICIAL:");
  from.mask = "##/##/####";
  from.enter_moves_on = true;
  from.on_lost_focus = [&rt, &f] {
    const std::string& text = f["A2"].text();
    f["A2"].set_text(text.empty() ? kStart : date_field_rule(text, rt.host().today()));
  };
  ui::Control& to = ui::add_field(f, "A3", ControlKind::MaskedBox, "DATA FINAL:");
  ui::date_field(to);
  to.enter_moves_on = true;
  f.add("Command1", ControlKind::Button, "Busca").on_click = [&rt, &f] { search(rt, f); };
  ui::Control& reference = ui::add_field(f, "GR", ControlKind::TextBox, "REFERÊNCIA:");
  ui::number_field(reference);
  reference.enter_moves_on = true;
  reference.on_lost_focus = [&f] {
    if (!f["GR"].text().empty()) f["GR"].set_text(format(Value(f["GR"].text()), "0000"));
  };
  f.add("Command2", ControlKind::Button, "Busca por referência").on_click = [&rt, &f] { search_reference(rt, f); };
  f.add("Command3", ControlKind::Button, "Relatório por vendedor").on_click = [&rt, &f] {
    prod::print_seller_report(rt, period(rt, f), prod::Costs());
  };
  f.add("Command4", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("Prod"); };
  ui::Control& tabs = f.add("SSTab1", ControlKind::Tabs);
  tabs.items = {"Vendas - Resumida", "Ranking de Vendas", "Vendas - Detalhada"};
  tabs.tab_stop = false;
  const char* grids[] = {"Grid1", "Grid3", "Grid4"};
  for (int page = 0; page < 3; ++page) f.add(grids[page], ControlKind::Grid).page = page;
  add_total(f, "T1", "TOTAL PELO CUSTO:");
  add_total(f, "T2", "TL.VENDA SEM DESCONTOS:");
  add_total(f, "T3", "RESULTADO:");
  add_total(f, "TD", "TL. VENDAS COM DESCONTO:");
  add_total(f, "TTD", "TL. DE DESCONTO:");
  // The period, the reference and the totals stand beside the three lists.
  for (const auto& c : f.controls())
    if (c->kind() != ControlKind::Grid && c->kind() != ControlKind::Tabs) c->page = ui::kOutsideTabs;

  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["A2"].set_text(kStart);
    f["A3"].set_text(ui::today_text(rt));
    f["SSTab1"].set_list_index(0);
    clear(f);
    f["TD"].set_text("0,00");
    f["TTD"].set_text("0,00");
  };
  return form;
}

}  // namespace mz::sales
