#include "finance/reports/period_screen.h"

#include "finance/reports/account_report.h"
#include "finance/searches/accounts.h"
#include "records/customers.h"
#include "ui/fields.h"

namespace mz::finance::reports {

using ui::ControlKind;

namespace {

constexpr const char* kOptions[] = {"T1", "T2", "T3", "T4"};
// The open ends of a period on these screens.
constexpr const char* kFirstDay = "30/12/1900";
constexpr const char* kLastDay = "30/12/2099";

std::string chosen_option(const ui::Form& f) {
  for (const char* name : kOptions)
    if (f[name].checked()) return name;
  return "";
}

// Only the orders that the title has a report for can be chosen: the
// order of operation belongs to settled accounts.
void offer_orders(ui::Form& f) {
  const std::string& title = f["TT"].text();
  for (const char* name : kOptions) f[name].enabled = find_variant(title, name) != nullptr;
  if (!f[chosen_option(f)].enabled) f["T1"].set_checked(true);
}

void print(ui::Runtime& rt, ui::Form& f, ReportPair& reports, ByCustomer by_customer) {
  const std::string* customer = nullptr;
  if (by_customer == ByCustomer::Yes) {
    ui::Control& a1 = f["A1"];
    if (a1.text().empty()) {
      rt.message("Selecione o Cliente.");
      return rt.set_focus(a1);
    }
    customer = &a1.text();
  }
  searches::period_bound(rt, f["A2"], kFirstDay);
  searches::period_bound(rt, f["A3"], kLastDay);
  const Variant* v = find_variant(f["TT"].text(), chosen_option(f));
  if (!v) return;
  rt.wait_pointer(true);
  fill_rela3(*v, {f["A2"].text(), f["A3"].text()}, customer);
  rt.wait_pointer(false);
  print_rela3(rt, reports, *v);
}

}  // namespace

std::unique_ptr<ui::Form> make_period_screen(ui::Runtime& rt, const char* name, ByCustomer by_customer) {
  auto form = std::make_unique<ui::Form>(rt, name, "Impressão");
  ui::Form& f = *form;
  ui::Control& title = f.add("TT", ControlKind::Label);
  title.on_change = [&f] { offer_orders(f); };
  if (by_customer == ByCustomer::Yes) ui::add_field(f, "A1", ControlKind::ComboBox, "SELECIONE O CLIENTE:");
  ui::add_field(f, "A2", ControlKind::MaskedBox, "DATA INICIAL:").mask = "##/##/####";
  ui::add_field(f, "A3", ControlKind::MaskedBox, "DATA FINAL:").mask = "##/##/####";
  f.add("Label1", ControlKind::Label, "DIGITE A DATA INICIAL E FINAL E CLIQUE NO BOTÃO IMPRIME.");
  f.add("T1", ControlKind::OptionButton, "Ordem de Vencimento.");
  f.add("T2", ControlKind::OptionButton, "Ordem de Emissão.");
  f.add("T3", ControlKind::OptionButton, "Ordem de Operação.");
  f.add("T4", ControlKind::OptionButton, "Ordem de Operação.");
  auto reports = std::make_shared<ReportPair>(rt);
  f.add("SSCommand7", ControlKind::Button, "&Imprime").on_click = [&rt, &f, reports, by_customer] {
    print(rt, f, *reports, by_customer);
  };
  f.add("SSCommand3", ControlKind::Button, "&Seleciona").on_click = [&rt, name] {
    rt.close(name);
    if (rt.is_shown("Impecon")) rt.set_focus(rt.screen("Impecon")["Combo1"]);
  };
  f.add("SSCommand5", ControlKind::Button, "&Volta").on_click = [&rt, name] {
    rt.close(name);
    rt.close("Impecon");
  };
  f.on_load = [&rt, &f, by_customer] {
    rt.centre(f);
    f["T1"].set_checked(true);
    if (by_customer == ByCustomer::Yes) ui::name_combo(f["A1"], records::customer_names());
  };
  return form;
}

}  // namespace mz::finance::reports

namespace mz::finance {

std::unique_ptr<ui::Form> make_impecon2(ui::Runtime& rt) {
  return reports::make_period_screen(rt, "IMPECON2", reports::ByCustomer::No);
}

std::unique_ptr<ui::Form> make_impecon4(ui::Runtime& rt) {
  return reports::make_period_screen(rt, "IMPECON4", reports::ByCustomer::Yes);
}

}  // namespace mz::finance
