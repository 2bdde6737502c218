#include "sales/venda/closing.h"

#include <functional>

#include "core/error.h"
#include "core/format.h"
#include "core/regional.h"
#include "core/text.h"
#include "records/customers.h"
#include "records/option_list.h"
#include "sales/sellers.h"
#include "sales/venda/customer.h"
#include "sales/venda/grids.h"
#include "sales/venda/items.h"
#include "ui/fields.h"
#include "ui/keys.h"

namespace mz::sales::venda {

using ui::ControlKind;

namespace {

const std::vector<std::string> kInstalmentHeading = {"PARC.", "VENCIMENTO", "VALOR", "DOCUMENTO", "FORMA PGTO."};
constexpr int kDaysBetweenInstalments = 30;

ui::Control& on_closing_page(ui::Control& c) {
  c.page = kClosingPage;
  return c;
}

ui::Control& closing_field(ui::Form& f, const std::string& name, ControlKind kind, const std::string& caption) {
  if (!caption.empty()) on_closing_page(f.add("L" + name, ControlKind::Label, caption));
  return on_closing_page(f.add(name, kind));
}

ui::Control& closing_button(ui::Form& f, const std::string& name, const std::string& caption,
                            std::function<void()> action) {
  ui::Control& button = on_closing_page(f.add(name, ControlKind::Button, caption));
  button.on_click = std::move(action);
  return button;
}

// Leaving the discount: "%" takes that share of the sub total, "R$" that
// amount; a percentage is kept as typed.
void apply_discount(ui::Runtime& rt, ui::Form& f) {
  f["W5"].set_text("0,00");
  f["W6"].set_text("0,00");
  try {
    const Currency subtotal = amount(f["W1"].text()), discount = amount(f["W2"].text());
    if (f["Option1"].checked()) {
      const double off = (subtotal * discount).to_double() / 100;
      f["W3"].set_text(format(Value(subtotal.to_double() - off), "###,##0.00"));
    } else if (f["Option2"].checked()) {
      f["W3"].set_text(money(subtotal - discount));
    } else {
      f["W3"].set_text(f["W1"].text());
    }
  } catch (const Error&) {
    rt.message("Operação não realizada.");
  }
}

// Leaving the amount paid: the change, or what is left to pay. Paid and
// total equal touch neither.
void apply_payment(ui::Form& f) {
  const Currency paid = amount(f["W4"].text()), total = amount(f["W3"].text());
  f["W5"].set_text(money(paid - total));
  if (paid > total) f["W6"].set_text("0,00");
  if (paid < total) {
    f["W5"].set_text("0,00");
    f["W6"].set_text(money(total - paid));
  }
}

// Leaving the customer: the card's phone and document, the blocked warning
// (the sale goes on), and the debt. A name not on file is taken as typed.
void apply_customer(ui::Runtime& rt, ui::Form& f) {
  const std::string name = f["c1"].text();
  if (name.empty()) return;
  if (auto card = find_customer(name)) {
    f["c2"].set_text(card->phone);
    f["c3"].set_text(card->document);
    if (card->blocked) rt.message("Atenção este cliente está bloqueado, verifique.");
  }
  f["SDC"].set_text(money(customer_debt(name)));
}

// Leaving the number of instalments: the balance shared out, rounded once.
void share_balance(ui::Form& f) {
  if (f["k5"].text().empty()) return;
  const double count = val(f["k5"].text());
  if (count == 0) return;  // no instalment to share the balance among
  f["K2"].set_text(format(Value(amount(f["W6"].text()).to_double() / count), "###,##0.00"));
}

void add_instalments(ui::Runtime& rt, ui::Form& f) {
  f["tt1"].set_text("0");
  if (amount(f["W6"].text()) == Currency{}) {
    rt.message("Saldo devedor em branco, entre com o valor pago.");
    return rt.set_focus(f["W4"]);
  }
  if (f["c1"].text().empty()) {
    rt.message("Selecione o cliente.");
    return rt.set_focus(f["c1"]);
  }
  if (f["K4"].text().empty()) {
    rt.message("Selecione a forma de pagamento");
    return rt.set_focus(f["K4"]);
  }
  if (f["K1"].text().empty()) f["K1"].set_text(ui::today_text(rt));
  if (amount(f["K2"].text()) == Currency{}) f["K2"].set_text(f["W6"].text());
  if (f["k5"].text().empty()) f["k5"].set_text("1");
  ui::Control& grid = f["Grid3"];
  for (int line = 1; line <= val(f["k5"].text()); ++line) {
    f["tt1"].set_text(std::to_string(line));
    const std::string due = format(Value(f["K1"].text()), "00/00/0000");
    append_row(grid, {f["tt1"].text(), due, format(Value(f["K2"].text()), "###,##0.00"), f["K3"].text(),
                      f["K4"].text()});
    Date next = date_add_days(Value(due).to_date(), kDaysBetweenInstalments);
    f["K1"].set_text(format(Value(next), "dd/mm/yyyy"));
  }
  stripe(grid);
}

// Typing in Grid3 edits the current cell; Enter and Tab go to the next
// cell, row by row, and from the last row back to the first.
void edit_instalment(ui::Control& grid, int& key) {
  ui::GridCells& g = grid.grid;
  const int typed = key;
  key = 0;
  if (g.rows < 2) return;
  if (g.row < 1 || g.row >= g.rows) g.row = 1;
  std::string& cell = g.cell(g.row, g.col);
  if (typed == ui::key::kBackspace) {
    if (!cell.empty()) cell = left(cell, len(cell) - 1);
  } else if (typed == ui::key::kEnter || typed == ui::key::kTab) {
    if (++g.col >= g.cols) {
      g.col = 0;
      g.row = g.row + 1 < g.rows ? g.row + 1 : 1;
    }
  } else if (typed >= 32) {
    cell += from_code_point(static_cast<char32_t>(typed));
  }
}

void add_amounts(ui::Runtime& rt, ui::Form& f) {
  closing_field(f, "W1", ControlKind::Label, "SUB TOTAL:");
  on_closing_page(f.add("Label1", ControlKind::Label, "FORMA:      DESCONTO:"));
  for (auto [name, caption] : {std::pair{"Option1", "%"}, std::pair{"Option2", "R$"}})
    on_closing_page(f.add(name, ControlKind::OptionButton, caption)).group = "desconto";
  f["Option1"].set_checked(true);
  ui::money_field(closing_field(f, "W2", ControlKind::MaskedBox, ""), [&rt, &f] { apply_discount(rt, f); });
  closing_field(f, "W3", ControlKind::Label, "TOTAL:").bold = true;
  f["LW3"].bold = true;
  ui::money_field(closing_field(f, "W4", ControlKind::TextBox, "VALOR PAGO:"), [&f] { apply_payment(f); });
  closing_field(f, "W5", ControlKind::Label, "TROCO:");
  closing_field(f, "W6", ControlKind::Label, "SALDO:");
}

void add_parties(ui::Runtime& rt, ui::Form& f) {
  closing_field(f, "VEN", ControlKind::ComboBox, "VENDEDOR:");
  closing_field(f, "c1", ControlKind::ComboBox, "CLIENTE:").on_lost_focus = [&rt, &f] { apply_customer(rt, f); };
  // The side buttons stay out of the Enter path from field to field.
  closing_button(f, "Command13", "Cadastro de clientes", [&rt] { rt.show("Cadastro"); }).tab_stop = false;
  closing_field(f, "c2", ControlKind::TextBox, "TELEFONE:");
  closing_field(f, "c3", ControlKind::TextBox, "NR. DOCUMENTO:");
  closing_field(f, "SDC", ControlKind::Label, "SALDO DEVEDOR DO CLIENTE:");
}

void add_instalment_fields(ui::Runtime& rt, ui::Form& f) {
  closing_field(f, "K4", ControlKind::ComboBox, "FORMA DE PAGAMENTO:");
  closing_button(f, "Command5", "Formas de pagamento",
                 [&rt, &f] { records::add_or_remove(rt, records::lists::kPaymentForms, f["K4"]); })
      .tab_stop = false;
  ui::Control& count = closing_field(f, "k5", ControlKind::TextBox, "NR.PARCELAS:");
  ui::number_field(count);
  count.on_lost_focus = [&f] { share_balance(f); };
  ui::date_field(closing_field(f, "K1", ControlKind::MaskedBox, "VENCIMENTO:"));
  ui::money_field(closing_field(f, "K2", ControlKind::TextBox, "VALOR PARC.:"));
  closing_field(f, "K3", ControlKind::ComboBox, "NR.DOCUMENTO:").items = {"CAIXA", "CONTAS"};
  closing_field(f, "tt1", ControlKind::Label, "").visible = false;
  closing_button(f, "Command4", "< Lança", [&rt, &f] { add_instalments(rt, f); });
}

void add_instalment_grid(ui::Form& f) {
  ui::Control& grid = closing_field(f, "Grid3", ControlKind::Grid, "PARCELAMENTO:");
  ui::show_rows(grid, kInstalmentHeading, {});
  grid.on_dbl_click = [&grid] {
    remove_row(grid, grid.grid.row);
    stripe(grid);
  };
  grid.on_key_press = [&grid](int& key) { edit_instalment(grid, key); };
  grid.on_got_focus = [&grid] {
    if (grid.grid.row < 1 && grid.grid.rows > 1) grid.grid.row = 1;
  };
}

}  // namespace

void go_to_closing(ui::Runtime& rt, ui::Form& f) {
  f["SSTab1"].set_list_index(kClosingPage);
  rt.set_focus(f["W2"]);
}

void fill_payment_forms(ui::Form& f) { f["K4"].items = records::list_items(records::lists::kPaymentForms); }

void fill_sellers(ui::Form& f) { ui::name_combo(f["VEN"], seller_names()); }

void fill_customers(ui::Form& f) { ui::name_combo(f["c1"], records::customer_names()); }

void reset_amounts(ui::Form& f) {
  for (const char* name : {"W1", "W2", "W3", "W4", "W5", "W6", "K2"}) f[name].set_text("0,00");
  clear_rows(f["Grid3"]);
}

void add_closing_tab(ui::Runtime& rt, ui::Form& f, const std::function<void()>& add_buttons) {
  add_amounts(rt, f);
  add_parties(rt, f);
  add_instalment_fields(rt, f);
  add_buttons();
  add_instalment_grid(f);
}

}  // namespace mz::sales::venda
