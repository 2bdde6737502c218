// Loading an account into bxx and the figures worked out as the user moves
// through the interest and the amount paid.
#include "core/error.h"
#include "core/format.h"
#include "core/regional.h"
#include "finance/bxx/form.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::finance::bxx {

Currency money_in(const ui::Control& field) {
  try {
    return parse_money(field.text()).value_or(Currency{});
  } catch (const Error&) {
    return Currency{};  // past the currency range: no amount either
  }
}

void load_account(ui::Runtime& rt, ui::Form& f) {
  store::Database db = store::Workspace::open_database("\\Contas.Mdb");
  store::Recordset rs = db.open_recordset("SELECT* FROM CADA where CODIGO = " + store::sql_quote(f["NN"].text()));
  if (rs.eof()) return;
  for (const char* name : {"D1", "D4", "D5", "D6", "D7", "D9"}) f[name].set_text(rs[name].text());
  f["D2"].set_text(store::data_tela(rs["D2"]));
  f["D3"].set_text(store::data_tela(rs["D3"]));
  f["NN"].set_text(rs["CODIGO"].text());
  std::string status;
  if (rs["BX"].text() == "A" && rs["D1"].text() == "Pagar") status = "CONTA A PAGAR EM ABERTO.";
  if (rs["BX"].text() == "A" && rs["D1"].text() == "Receber") status = "CONTA A RECEBER EM ABERTO.";
  f["TT"].set_text(status);
  f["VP"].set_text(f["D5"].text());
  if (auto due = parse_date(f["D3"].text()))
    f["G1"].set_text(std::to_string(date_diff_days(*due, rt.host().today().date_only())));
  rt.set_focus(f["PG"]);
}

// Each step is passed over on an arithmetic error, the field keeping what it
// had, and the next step still runs on what the fields then hold.
void add_interest(ui::Form& f) {
  if (f["G2"].text().empty()) f["G2"].set_text("0,00");
  std::string rate;
  try {
    rate = number_text(Value(f["G1"].text()).to_number() * Value(f["G2"].text()).to_number());
  } catch (const Error&) {
  }
  try {
    double paid = Value(f["VP"].text()).to_currency().to_double();
    f["G3"].set_text(number_text(paid * Value(rate).to_number() / 100));
  } catch (const Error&) {
  }
  try {
    f["VP"].set_text(currency_text(Value(f["G3"].text()).to_currency() + Value(f["VP"].text()).to_currency()));
  } catch (const Error&) {
  }
}

void paid_by_hand(ui::Form& f) {
  Currency paid = money_in(f["VP"]), owed = money_in(f["D5"]);
  if (paid > owed) f["G3"].set_text(format(Value(paid - owed), "###,##0.00"));
}

}  // namespace mz::finance::bxx
