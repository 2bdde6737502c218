// BUSCAIXA: the cash lines between two dates with their debits, credits and
// result; by plan, reordered by a column, and the owner's erasing of the
// account and bank files.
#include <memory>

#include "core/format.h"
#include "core/input_helpers.h"
#include "finance/caixa/owner.h"
#include "finance/screens.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::finance {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"Data",  "Operação",  "Nr.Doc.",  "Tipo",
                                           "Valor", "Histórico", "Controle", "Grupo"};
constexpr const char* kStart = "01/01/2000";

// The columns the list can be put in order by, with the tail each gives.
struct Order {
  const char* name;
  const char* tail;
};
constexpr Order kOrders[] = {
    {"OPERAÇÃO", "# Order By cada.a2;"}, {"Nº DOC", "# Order By cada.a3;"}, {"VALOR", "# Order By cada.a5;"},
    {"TIPO", "# Order By cada.a4;"},     {"PLANO", "# Order By cada.plano;"}, {"HISTÓRICO", "# Order By cada.a6;"},
};

store::Database book() { return store::Workspace::open_database("\\caixa.mdb"); }

void show_list(ui::Form& f, const std::string& sql) {
  std::vector<std::vector<std::string>> rows;
  store::Database db = book();
  for (store::Recordset rs = db.open_recordset(sql); !rs.eof(); rs.move_next())
    rows.push_back({store::data_tela(rs["A1"]), rs["A2"].text(), rs["A3"].text(), rs["A4"].text(),
                    ui::money_text(rs["A5"]), rs["A6"].text(), rs["CODIGO"].text(), rs["PLANO"].text()});
  ui::Control& grid = f["DBGrid1"];
  ui::show_rows(grid, kHeading, rows);
  ui::zebra_grid(grid, 1, ui::kWhite);  // a bound list is not striped
}

Currency sum_of(const std::string& sql) {
  store::Database db = book();
  store::Recordset rs = db.open_recordset(sql);
  Value total = rs.eof() ? Value::null() : rs[0].value();
  return total.is_null() ? Currency{} : total.to_currency();
}

// The period typed, an invalid date standing for today.
struct Period {
  std::string from, to;  // month first, for # literals
};

Period period(ui::Runtime& rt, ui::Form& f) {
  Date today = rt.host().today();
  for (const char* name : {"A2", "A3"}) f[name].set_text(date_field_rule(f[name].text(), today));
  return {store::data_sql(f["A2"].text(), today), store::data_sql(f["A3"].text(), today)};
}

// The three figures over the period; `also` narrows them further.
void show_figures(ui::Form& f, const Period& p, const std::string& also) {
  std::string head = "select sum(A5) from CADA Where A1 between #" + p.from + "#  and #" + p.to + "#";
  Currency credits = sum_of(head + " AND (CADA.A2 Like  'Crédito*')" + also + " ;");
  Currency debits = sum_of(head + " AND (CADA.A2 Like  'Débito*') " + also + ";");
  f["A8"].set_text(format(Value(credits), "###,##0.00"));
  f["A7"].set_text(format(Value(debits), "###,##0.00"));
  f["A9"].set_text(format(Value(credits - debits), "###,##0.00"));
}

void zero_figures(ui::Form& f) {
  for (const char* name : {"A7", "A8", "A9"}) f[name].set_text("0,00");
}

void search(ui::Runtime& rt, ui::Form& f) {
  zero_figures(f);
  Period p = period(rt, f);
  show_list(f, "Select * From cada Where A1 between #" + p.from + "# and #" + p.to + "# Order By cada.a1;");
  show_figures(f, p, "");
}

void search_by_plan(ui::Runtime& rt, ui::Form& f) {
  std::string plan = f["PLANO"].text();
  if (plan.empty()) return;
  if (rt.message("Confirma consulta por plano?", ui::Buttons::YesNo) != ui::Answer::Yes) return;
  zero_figures(f);
  Period p = period(rt, f);
  std::string by_plan = "(cada.plano Like  " + store::sql_quote(plan) + ")";
  show_list(f, "Select * From cada Where A1 between #" + p.from + "# and #" + p.to + "# AND " + by_plan +
                   " Order By cada.codigo;");
  show_figures(f, p, "AND " + by_plan);
}

void reorder(ui::Runtime& rt, ui::Form& f) {
  for (const Order& order : kOrders) {
    if (f["Combo1"].text() != order.name) continue;
    Period p = period(rt, f);
    show_list(f, "Select * From cada Where A1 between #" + p.from + "# and #" + p.to + order.tail);
  }
}

void erase_file(ui::Runtime& rt, const char* file, const char* statement) {
  store::Workspace::open_database(file).execute(statement);
  rt.message("Operação realizada.");
}

}  // namespace

std::unique_ptr<ui::Form> make_buscaixa(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "BUSCAIXA", "Busca - Caixa");
  ui::Form& f = *form;
  ui::Control& from = ui::add_field(f, "A2", ControlKind::MaskedBox, "DATA INICIAL:");
  ui::date_field(from);
  from.enter_moves_on = true;
  from.on_got_focus = [&rt, &f] {
    f["A2"].set_text(kStart);
    f["A2"].sel_start = 0;
    f["A2"].sel_length = 10;
    f["A3"].set_text(ui::today_text(rt));
  };
  ui::Control& to = ui::add_field(f, "A3", ControlKind::MaskedBox, "DATA FINAL:");
  ui::date_field(to);
  to.enter_moves_on = true;
  to.on_lost_focus = [&rt, &f] {
    if (rt.message("Confirma consulta?", ui::Buttons::YesNo) == ui::Answer::Yes) search(rt, f);
  };
  ui::Control& plan = ui::add_field(f, "PLANO", ControlKind::TextBox, "PLANO:");
  plan.enter_moves_on = true;
  f.add("Command2", ControlKind::Button, "Consulta por plano").on_click = [&rt, &f] { search_by_plan(rt, f); };
  ui::Control& order = ui::add_field(f, "Combo1", ControlKind::ComboBox, "ORDENAR POR:");
  for (const Order& o : kOrders) order.items.push_back(o.name);
  order.on_click = [&rt, &f] { reorder(rt, f); };
  f.add("DBGrid1", ControlKind::BoundGrid);
  ui::add_field(f, "A7", ControlKind::Label, "DEBITO:");
  ui::add_field(f, "A8", ControlKind::Label, "CRÉDITO:");
  ui::add_field(f, "A9", ControlKind::Label, "TOTAL:");
  f.add("SSCommand1", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("BUSCAIXA"); };
  f.add("mnuApagaContas", ControlKind::MenuItem, "Apaga todas as contas").on_click = [&rt] {
    cash::owner_erase(rt, "Confirma exclusão de todas as contas a pagar, pagas, a receber e recebidas ?",
                      [&rt] { erase_file(rt, "\\contas.MDB", "DELETE FROM cada;"); });
  };
  f.add("mnuApagaBancos", ControlKind::MenuItem, "Apaga todas as contas em banco").on_click = [&rt] {
    cash::owner_erase(rt, "Confirma exclusão de todas as contas em banco?",
                      [&rt] { erase_file(rt, "\\ban.MDB", "DELETE FROM ban;"); });
  };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["A2"].set_text(kStart);
    f["A3"].set_text(ui::today_text(rt));
    zero_figures(f);
    show_list(f, "Select * From cada order by A1");
    Period p = period(rt, f);
    show_figures(f, p, "");
  };
  return form;
}

}  // namespace mz::finance
