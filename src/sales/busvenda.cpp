// BUSVENDA: the sales of a period, all of them, one seller's or one
// customer's, with their total.
#include <memory>

#include "records/customers.h"
#include "sales/prod/period.h"
#include "sales/results_screens.h"
#include "sales/sellers.h"
#include "ui/fields.h"

namespace mz::sales {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"Nr. Venda", "Data", "Total", "Cliente", "Vendedor", "Pagamento"};

// The period query into Grid1; `column` narrows it to the value of `field`.
void search(ui::Runtime& rt, ui::Form& f, const char* column = nullptr, const char* field = nullptr) {
  prod::Period p = prod::read_period(rt, f, "A2", "A3");
  std::vector<prod::SaleRow> sales =
      column ? prod::period_sales(p, column, f[field].text()) : prod::period_sales(p);
  std::vector<std::vector<std::string>> rows;
  Currency total;
  for (const prod::SaleRow& s : sales) {
    rows.push_back({s.codigo, s.data, ui::money_text(s.total), s.nome, s.vendedor, s.pagamento});
    total = total + prod::amount_of(s.total);
  }
  ui::show_rows(f["Grid1"], kHeading, rows);
  f["TL"].set_text(money(total));
}

void search_by(ui::Runtime& rt, ui::Form& f, const char* column, const char* field) {
  if (f[field].text().empty()) return;  // no one chosen: nothing to narrow to
  search(rt, f, column, field);
}

}  // namespace

std::unique_ptr<ui::Form> make_busvenda(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "BUSVENDA", "Busca Vendas");
  ui::Form& f = *form;
  f.width = 900;
  f.height = 560;
  for (auto [name, caption] : {std::pair{"A2", "DATA INICIAL:"}, std::pair{"A3", "DATA FINAL:"}}) {
    ui::Control& date = ui::add_field(f, name, ControlKind::MaskedBox, caption);
    ui::date_field(date);
    date.enter_moves_on = true;
  }
  f.add("Command1", ControlKind::Button, "Busca por período").on_click = [&rt, &f] { search(rt, f); };
  ui::add_field(f, "A4", ControlKind::ComboBox, "VENDEDOR:").enter_moves_on = true;
  f.add("Command2", ControlKind::Button, "Busca por vendedor").on_click = [&rt, &f] {
    search_by(rt, f, "VENDEDOR", "A4");
  };
  ui::add_field(f, "A6", ControlKind::ComboBox, "VENDA NOMINAL").enter_moves_on = true;
  f.add("Command3", ControlKind::Button, "Busca por cliente").on_click = [&rt, &f] { search_by(rt, f, "NOME", "A6"); };
  ui::show_rows(f.add("Grid1", ControlKind::Grid), kHeading, {});
  ui::Control& total = ui::add_field(f, "TL", ControlKind::Label, "TOTAIS:");
  total.bold = true;
  f.add("Command4", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("BUSVENDA"); };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["A2"].set_text(ui::today_text(rt));
    f["A3"].set_text(ui::today_text(rt));
    f["TL"].set_text("0,00");
    ui::name_combo(f["A4"], seller_names());
    ui::name_combo(f["A6"], records::customer_names());
  };
  return form;
}

}  // namespace mz::sales
