// CONCLIE: every account of one party over a period, the open ones and the
// settled ones in two lists with their totals, and the printing of either.
#include <memory>

#include "finance/screens.h"
#include "finance/searches/accounts.h"
#include "finance/searches/party_report.h"
#include "records/customers.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::finance {

using ui::ControlKind;

namespace {

const std::vector<std::string> kOpenHeading = {"Venc.", "NºDoc.", "Vlr.Pagar", "Vlr.Receber", "Controle", "Histórico"};
const std::vector<std::string> kSettledHeading = {"Venc.",        "NºDoc.",   "Dt.Operação", "Vlr.Pago",
                                                  "Vlr.Recebido", "Controle", "Histórico"};
constexpr int kOpenControlColumn = 4;

void list_party(ui::Runtime& rt, ui::Form& f) {
  std::string period = searches::due_between(rt, f["A2"], f["A3"], "01/01/1900", "30/12/2099");
  const std::string& party = f["D9"].text();
  if (party.empty()) return;
  for (const char* figure : {"D11", "D12", "D11X", "D12X"}) f[figure].set_text(searches::total_text({}));
  std::string where = period + " AND D9 = " + store::sql_quote(party) + " AND ";
  store::Database db = searches::accounts();

  std::vector<std::vector<std::string>> open;
  Currency to_pay, to_receive;
  for (store::Recordset rs = searches::select_accounts(db, where + searches::status_is("A"), "D3"); !rs.eof();
       rs.move_next()) {
    bool pays = rs["D1"].text() == "Pagar";
    std::string amount = searches::list_amount(rs["D5"]);
    open.push_back({rs["D3"].text(), rs["D4"].text(), pays ? amount : "", pays ? "" : amount, rs["CODIGO"].text(),
                    rs["D6"].text()});
    searches::add_to(pays ? to_pay : to_receive, rs["D5"]);
  }
  ui::show_rows(f["Grid1"], kOpenHeading, open);
  f["D11"].set_text(searches::total_text(to_pay));
  f["D12"].set_text(searches::total_text(to_receive));

  std::vector<std::vector<std::string>> settled;
  Currency paid, received;
  for (store::Recordset rs = searches::select_accounts(db, where + searches::status_is("F"), "D3"); !rs.eof();
       rs.move_next()) {
    bool pays = rs["D1"].text() == "Pagar";
    std::string amount = searches::list_amount(rs["D5"]);
    settled.push_back({rs["D3"].text(), rs["D4"].text(), rs["PG"].text(), pays ? amount : "", pays ? "" : amount,
                       rs["CODIGO"].text(), rs["D6"].text()});
    searches::add_to(pays ? paid : received, rs["D5"]);
  }
  ui::show_rows(f["Grid2"], kSettledHeading, settled);
  f["D11X"].set_text(searches::total_text(paid));
  f["D12X"].set_text(searches::total_text(received));
}

}  // namespace

std::unique_ptr<ui::Form> make_conclie(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "CONCLIE", "Busca por Cliente");
  ui::Form& f = *form;
  ui::add_field(f, "D9", ControlKind::ComboBox, "SELECIONE O CLIENTE:");
  ui::add_field(f, "A2", ControlKind::MaskedBox, "DATA INICIAL:").mask = "##/##/####";
  ui::add_field(f, "A3", ControlKind::MaskedBox, "DATA FINAL:").mask = "##/##/####";
  f.add("Command1", ControlKind::Button, "Busca").on_click = [&rt, &f] { list_party(rt, f); };
  auto report = searches::party_report(rt);
  f.add("Command2", ControlKind::Button, "Imprime contas em aberto").on_click = [&f, report] {
    searches::print_party(*report, f, f["Grid1"], searches::PartyList::Open);
  };
  f.add("Command3", ControlKind::Button, "Imprime contas pagas e recebidas").on_click = [&f, report] {
    searches::print_party(*report, f, f["Grid2"], searches::PartyList::Settled);
  };
  ui::add_field(f, "D11", ControlKind::TextBox, "TOTAL PAGAR:");
  ui::add_field(f, "D12", ControlKind::TextBox, "TOTAL RECEBER:");
  ui::add_field(f, "D11X", ControlKind::TextBox, "TOTAL PAGO:");
  ui::add_field(f, "D12X", ControlKind::TextBox, "TOTAL RECEBIDO:");
  ui::Control& open = f.add("Grid1", ControlKind::Grid);
  open.on_dbl_click = [&rt, &open] {
    const ui::GridCells& g = open.grid;
    if (g.row < g.fixed_rows || g.row >= g.rows) return;
    searches::open_account(rt, g.cell(g.row, kOpenControlColumn));
  };
  f.add("Grid2", ControlKind::Grid);

  f.on_load = [&rt, &f] {
    rt.centre(f);
    ui::name_combo(f["D9"], records::customer_names());
    ui::show_rows(f["Grid1"], kOpenHeading, {});
    ui::show_rows(f["Grid2"], kSettledHeading, {});
  };
  return form;
}

}  // namespace mz::finance
