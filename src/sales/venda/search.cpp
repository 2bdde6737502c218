#include "sales/venda/search.h"

#include <vector>

#include "core/format.h"
#include "sales/prod/period.h"
#include "sales/venda/grids.h"
#include "sales/venda/resumo.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::sales::venda {

using ui::ControlKind;

namespace {

const std::vector<std::string> kSalesHeading = {"NR. VENDA", "DATA", "VALOR", "CLIENTE", "VENDEDOR", "PAGAMENTO"};

ui::Control& on_search_page(ui::Control& c) {
  c.page = kSearchPage;
  return c;
}

ui::Control& search_field(ui::Form& f, const std::string& name, ControlKind kind, const std::string& caption) {
  on_search_page(f.add("L" + name, ControlKind::Label, caption));
  return on_search_page(f.add(name, kind));
}

void search_button(ui::Form& f, const char* name, const char* caption, std::function<void()> action) {
  on_search_page(f.add(name, ControlKind::Button, caption)).on_click = std::move(action);
}

// The sales of T1 to T2 in Grid4; `column` keeps one seller's or one
// customer's.
void show_sales(ui::Runtime& rt, ui::Form& f, const char* column = nullptr, const std::string& value = {}) {
  const Date today = rt.host().today();
  const prod::Period p{store::data_sql(f["T1"].text(), today), store::data_sql(f["T2"].text(), today),
                       f["T1"].text(), f["T2"].text()};
  std::vector<std::vector<std::string>> rows;
  for (prod::SaleRow& s : prod::period_sales(p, column, value))
    rows.push_back(prod::cells(std::move(s.codigo), std::move(s.data), ui::money_text(s.total), std::move(s.nome),
                               std::move(s.vendedor), std::move(s.pagamento)));
  ui::show_rows(f["Grid4"], kSalesHeading, rows);  // a month of sales at once, not row by row
}

// Command8 and Command18: nothing chosen, nothing searched.
void search_by(ui::Runtime& rt, ui::Form& f, const char* field, const char* column) {
  const std::string chosen = f[field].text();
  if (chosen.empty()) return;
  show_sales(rt, f, column, chosen);
}

void ask_ticket(ui::Runtime& rt, ui::Form& f) {
  const std::string typed =
      rt.host().input_box("Digite o número do ticket e clique no botão OK ", "Busca Vendas", "").value_or("");
  if (typed.empty()) return;
  recall_sale(rt, f, format(Value(typed), "00000000"), RecallFrom::Ticket);
}

void recall_chosen(ui::Runtime& rt, ui::Form& f) {
  const std::string number = ui::chosen_key(f["Grid4"]);
  if (number.empty()) return;  // the heading or an empty list
  rt.message("Venda selecionada: " + number);
  recall_sale(rt, f, number, RecallFrom::List);
}

}  // namespace

void add_search_tab(ui::Runtime& rt, ui::Form& f) {
  for (auto [name, caption] : {std::pair{"T1", "DATA INICIAL:"}, std::pair{"T2", "DATA FINAL:"}}) {
    ui::Control& date = search_field(f, name, ControlKind::MaskedBox, caption);
    ui::date_field(date);
    date.enter_moves_on = true;
  }
  search_field(f, "T3", ControlKind::ComboBox, "BUSCA POR VENDEDOR:").enter_moves_on = true;
  search_field(f, "T4", ControlKind::ComboBox, "BUSCA POR CLIENTE:").enter_moves_on = true;
  // The buttons in a row of their own, between the fields and the list.
  search_button(f, "Command6", "Busca por período", [&rt, &f] { search_period(rt, f); });
  search_button(f, "Command8", "Busca por vendedor", [&rt, &f] { search_by(rt, f, "T3", "VENDEDOR"); });
  search_button(f, "Command18", "Busca por cliente", [&rt, &f] { search_by(rt, f, "T4", "NOME"); });
  search_button(f, "Command3", "01- Busca ticket", [&rt, &f] { ask_ticket(rt, f); });
  search_button(f, "Command19", "04- Resumo", [&rt, &f] { print_resumo(rt, f); });
  ui::Control& grid = on_search_page(f.add("Grid4", ControlKind::Grid));
  ui::show_rows(grid, kSalesHeading, {});
  grid.on_dbl_click = [&rt, &f] { recall_chosen(rt, f); };
}

void load_search_dates(ui::Runtime& rt, ui::Form& f) {
  f["T1"].set_text(ui::today_text(rt));
  f["T2"].set_text(ui::today_text(rt));
}

void load_search_list(ui::Form& f) { clear_rows(f["Grid4"]); }

void load_search_sellers(ui::Form& f) { ui::name_combo(f["T3"], f["VEN"].items); }

void load_search_customers(ui::Form& f) { ui::name_combo(f["T4"], f["c1"].items); }

void search_period(ui::Runtime& rt, ui::Form& f) { show_sales(rt, f); }

}  // namespace mz::sales::venda
