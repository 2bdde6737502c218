// CONBX: the settled accounts of a period, with what they were worth and
// what was paid; and the deletion of a whole period of one kind of account.
#include <memory>

#include "core/error.h"
#include "core/format.h"
#include "finance/screens.h"
#include "finance/searches/accounts.h"
#include "records/customers.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::finance {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"Venc.",    "NºDoc.",    "Valor",    "Tipo",        "Cliente",
                                           "Controle", "Histórico", "DT.Oper.", "Vlr.Operação"};
constexpr int kSearchPage = 0, kDeletionPage = 1;

// What the deletion's choice removes, and the question it asks first.
struct Deletion {
  const char* choice;
  const char* question;
  const char* bx;
  const char* kind;
};
constexpr Deletion kDeletions[] = {
    {"CONTAS PAGAS", "Deseja apagar todas as contas pagas, dentro do período selecionado?", "F", "Pagar"},
    {"CONTAS RECEBIDAS", "Deseja apagar todas as contas recebidas, dentro do período selecionado?", "F", "Receber"},
    {"CONTAS A PAGAR", "Deseja apagar todas as contas a pagar, dentro do período selecionado?", "A", "Pagar"},
    {"CONTAS A RECEBER", "Deseja apagar todas as contas a receber, dentro do período selecionado?", "A", "Receber"},
};

// The period is that of the due date; `by_party` narrows it to the name in D9.
void list_settled(ui::Runtime& rt, ui::Form& f, bool by_party) {
  std::string kind = f["A26"].text() == "CONTAS RECEBIDAS" ? "Receber" : "Pagar";
  std::string where = searches::due_between(rt, f["A2"], f["A3"], "01/01/1900", "30/12/2999") + " AND ";
  // One party's rows are found by the name; otherwise by status and kind.
  if (by_party)
    where += searches::status_is("F") + " AND D1 = " + store::sql_quote(kind) + " AND D9 = " +
             store::sql_quote(f["D9"].text());
  else
    where += searches::status_and_kind("F", kind);
  std::vector<std::vector<std::string>> rows;
  Currency worth, paid;
  store::Database db = searches::accounts();
  for (store::Recordset rs = searches::select_accounts(db, where, searches::order_column(f["Combo2"].text()));
       !rs.eof(); rs.move_next()) {
    Value amount = rs["D5"], operation = rs["VP"];
    rows.push_back({rs["D3"].text(), rs["D4"].text(), searches::list_amount(amount), rs["D7"].text(), rs["D9"].text(),
                    rs["CODIGO"].text(), rs["D6"].text(), rs["PG"].text(), operation.text()});
    searches::add_to(worth, amount);
    searches::add_to(paid, operation);
  }
  ui::show_rows(f["Grid1"], kHeading, rows);
  f["D11"].set_text(searches::total_text(worth));
  f["D12"].set_text(searches::total_text(paid));
}

// A bound of the deletion as the rows are compared with it; one that is no
// date fails the comparison.
std::string deletion_bound(ui::Runtime& rt, const ui::Control& field) {
  std::string shaped = format(Value(field.text()), "00/00/0000");
  if (!is_date(Value(shaped))) throw Error(err::kTypeMismatch, "Tipos incompatíveis");
  return store::data_sql(shaped, rt.host().today());
}

// The cash book keeps its lines: only the accounts go.
void delete_period(ui::Runtime& rt, ui::Form& f) {
  for (const Deletion& d : kDeletions) {
    if (f["Combo1"].text() != d.choice) continue;
    if (rt.message(d.question, ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes) return;
    std::string from = deletion_bound(rt, f["D1"]), to = deletion_bound(rt, f["D2"]);
    store::Database db = searches::accounts();
    db.execute("DELETE FROM Cada WHERE D3 between #" + from + "# and #" + to + "# AND " +
               searches::status_and_kind(d.bx, d.kind));
    return;
  }
}

ui::Control& on_page(ui::Control& c, int page) {
  c.page = page;
  return c;
}

}  // namespace

std::unique_ptr<ui::Form> make_conbx(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "CONBX", "Busca Contas Pagas ou Recebidas");
  ui::Form& f = *form;
  ui::Control& tabs = f.add("SSTab1", ControlKind::Tabs);
  tabs.items = {"&Busca contas pagas ou recebidas", "Apaga contas /caixa  por período"};
  tabs.set_list_index(kSearchPage);
  tabs.tab_stop = false;

  ui::Control& kind = on_page(f.add("A26", ControlKind::ListBox), kSearchPage);
  kind.items = {"CONTAS PAGAS", "CONTAS RECEBIDAS"};
  kind.set_list_index(0);
  auto period_field = [&f](const std::string& name, const char* caption, int page) -> ui::Control& {
    ui::Control& field = on_page(ui::add_field(f, name, ControlKind::MaskedBox, caption), page);
    on_page(f["L" + name], page);  // the caption stands on the field's page
    field.mask = "##/##/####";
    return field;
  };
  period_field("A2", "DATA INICIAL:", kSearchPage);
  ui::Control& last = period_field("A3", "DATA FINAL:", kSearchPage);
  last.leave_rule = ui::LeaveRule::Date;
  last.on_lost_focus = [&rt, &f] { list_settled(rt, f, false); };
  ui::Control& order = on_page(ui::add_field(f, "Combo2", ControlKind::ComboBox, "ORDENAR:"), kSearchPage);
  order.items = searches::kOrders;
  order.on_click = [&rt, &f] { list_settled(rt, f, false); };
  ui::Control& party = on_page(ui::add_field(f, "D9", ControlKind::ComboBox, "CLIENTE:"), kSearchPage);
  party.on_lost_focus = [&rt, &f] {
    if (!f["D9"].text().empty()) list_settled(rt, f, true);
  };
  on_page(ui::add_field(f, "D11", ControlKind::TextBox, "TOTAL:"), kSearchPage);
  on_page(ui::add_field(f, "D12", ControlKind::TextBox, "TOTAL:"), kSearchPage);
  on_page(f.add("Grid1", ControlKind::Grid), kSearchPage);

  ui::Control& choice = on_page(f.add("Combo1", ControlKind::ComboBox), kDeletionPage);
  for (const Deletion& d : kDeletions) choice.items.push_back(d.choice);
  period_field("D1", "DATA INICIAL:", kDeletionPage);
  period_field("D2", "DATA FINAL:", kDeletionPage);
  on_page(f.add("SSCommand3", ControlKind::Button, "Apaga"), kDeletionPage).on_click = [&rt, &f] {
    delete_period(rt, f);
  };
  on_page(f.add("Label1", ControlKind::Label, "1º SELECIONE O TIPO E DIGITE O PERÍODO QUE DESEJA APAGAR."),
          kDeletionPage);
  on_page(f.add("Label2", ControlKind::Label, "2º CLIQUE NO BOTÃO APAGA E AGUARDE."), kDeletionPage);
  on_page(f.add("Label3", ControlKind::Label, "3º RECOMENDA-SE FAZER O BACKUP ANTES DESTA OPERAÇÃO."), kDeletionPage);

  f.on_load = [&rt, &f] {
    rt.centre(f);
    ui::name_combo(f["D9"], records::customer_names());
    ui::show_rows(f["Grid1"], kHeading, {});
  };
  return form;
}

}  // namespace mz::finance
