// BUSCON: the open accounts to pay or to receive over a period, by control
// number or by document; the only way into the settlement screen bxx.
#include <memory>

#include "core/error.h"
#include "finance/screens.h"
#include "finance/searches/accounts.h"
#include "finance/searches/open_accounts.h"
#include "store/connection.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::finance {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"Venc.", "NºDoc.", "Valor", "Tipo", "Cliente", "Controle", "Histórico"};
constexpr int kControlColumn = 5;
constexpr const char* kFirstDay = "01/01/1900";
constexpr const char* kLastDay = "30/12/2999";

std::string kind_of(const ui::Form& f) { return f["A26"].text() == "CONTAS A RECEBER" ? "Receber" : "Pagar"; }

// The open accounts of the period and kind on screen, with `extra` conditions.
std::string open_where(ui::Runtime& rt, ui::Form& f, const std::string& extra = "") {
  return searches::due_between(rt, f["A2"], f["A3"], kFirstDay, kLastDay) + " AND " +
         searches::status_and_kind("A", kind_of(f)) + extra;
}

void show_accounts(ui::Form& f, const std::string& where, const std::string& order) {
  f["D11"].set_text("0,00");
  std::vector<std::vector<std::string>> rows;
  Currency total;
  store::Database db = searches::accounts();
  for (store::Recordset rs = searches::select_accounts(db, where, order); !rs.eof(); rs.move_next()) {
    Value amount = rs["D5"];
    rows.push_back({rs["D3"].text(), rs["D4"].text(), searches::list_amount(amount), rs["D7"].text(), rs["D9"].text(),
                    rs["CODIGO"].text(), rs["D6"].text()});
    searches::add_to(total, amount);
  }
  ui::show_rows(f["Grid1"], kHeading, rows);
  f["D11"].set_text(searches::total_text(total));
}

void list_open(ui::Runtime& rt, ui::Form& f) {
  show_accounts(f, open_where(rt, f), searches::order_column(f["Combo1"].text()));
}

// The document is compared as a number: a text that is not one fails the
// search as the engine fails a name it does not know.
void list_by_document(ui::Form& f) {
  const std::string& document = f["Text2"].text();
  if (document.empty()) return;
  if (!is_numeric(Value(document)))
    throw Error(store::dberr::kTooFewParameters, "Parâmetros insuficientes. Era esperado 1.");
  show_accounts(f, "D4 = " + store::sql_quote(document) + " AND " + searches::status_is("A"), "D3");
}

// Busca Plano: the open accounts of the period and kind that belong to one
// plan of accounts, asked by its name.
void list_by_plan(ui::Runtime& rt, ui::Form& f) {
  std::string plan = rt.host().input_box("Digite o plano de contas:", "Busca Plano", "").value_or("");
  if (plan.empty()) return;
  rt.wait_pointer(true);
  show_accounts(f, open_where(rt, f, " AND GRUPO = " + store::sql_quote(plan)), "D3");
  rt.wait_pointer(false);
}

// A failure on opening bxx is passed over.
void open_trapped(ui::Runtime& rt, const std::string& control) {
  try {
    searches::open_account(rt, control);
  } catch (const Error&) {
  }
}

}  // namespace

void relist_open_accounts(ui::Runtime& rt) {
  ui::Form& f = rt.screen("BUSCON");
  show_accounts(f, open_where(rt, f), "D3");
}

std::unique_ptr<ui::Form> make_buscon(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "BUSCON", "Busca - Contas");
  ui::Form& f = *form;
  ui::Control& kind = f.add("A26", ControlKind::ListBox);
  kind.items = {"CONTAS A PAGAR", "CONTAS A RECEBER"};
  kind.set_list_index(0);
  // The dates keep what is typed: a blank bound is only filled in by a search.
  ui::add_field(f, "A2", ControlKind::MaskedBox, "DATA INICIAL:").mask = "##/##/####";
  ui::add_field(f, "A3", ControlKind::MaskedBox, "DATA FINAL:").mask = "##/##/####";
  ui::Control& order = ui::add_field(f, "Combo1", ControlKind::ComboBox, "ORDENAR TABELA POR ORDEM:");
  order.items = searches::kOrders;
  order.on_click = [&rt, &f] { list_open(rt, f); };
  f.add("Command1", ControlKind::Button, "< Busca").on_click = [&rt, &f] { list_open(rt, f); };
  ui::add_field(f, "Text1", ControlKind::TextBox, "BUSCA POR CONTROLE:");
  f.add("Command2", ControlKind::Button, "< Busca").on_click = [&rt, &f] { open_trapped(rt, f["Text1"].text()); };
  ui::add_field(f, "Text2", ControlKind::TextBox, "BUSCA POR Nº DOCUMENTO:");
  f.add("Command3", ControlKind::Button, "< Busca").on_click = [&f] { list_by_document(f); };
  ui::Control& total = ui::add_field(f, "D11", ControlKind::TextBox, "TOTAL:");
  total.on_change = [&total] {
    if (total.text().empty()) total.set_text("0,00");
  };
  ui::Control& grid = f.add("Grid1", ControlKind::Grid);
  grid.on_dbl_click = [&rt, &grid] {
    const ui::GridCells& g = grid.grid;
    if (g.row < g.fixed_rows || g.row >= g.rows) return;
    open_trapped(rt, g.cell(g.row, kControlColumn));
  };
  f.add("Label1", ControlKind::Label, "Para apagar, alterar ou baixar uma conta, de um duplo clique sobre a mesma.");
  f.add("Label2", ControlKind::Label,
        "PARA BAIXAR, APAGAR OU ALTERAR UMA CONTA, DE UM DUPLO CLIQUE SOBRE A MESMA OU DIGITE O Nº DE CONTROLE.");
  f.add("SSCommand3", ControlKind::Button, "Busca &Plano").on_click = [&rt, &f] { list_by_plan(rt, f); };
  f.add("BuscaCliente", ControlKind::Button, "Busca &Cliente").on_click = [&rt] { rt.show("CONCLIE"); };
  f.add("BuscaBaixas", ControlKind::Button, "Busca &Baixas").on_click = [&rt] { rt.show("CONBX"); };
  f.add("Volta", ControlKind::Button, "&Volta").on_click = [&rt] { rt.close("BUSCON"); };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["D11"].set_text("0,00");
    ui::show_rows(f["Grid1"], kHeading, {});
  };
  return form;
}

}  // namespace mz::finance
