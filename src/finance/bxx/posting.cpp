// "&Confirma", "&Altera" and "A&paga": what bxx writes to the accounts and,
// after its question, to the cash book.
#include "core/error.h"
#include "core/format.h"
#include "finance/bxx/form.h"
#include "store/database.h"
#include "store/keys.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::finance::bxx {

namespace {

store::Database accounts() { return store::Workspace::open_database("\\Contas.Mdb"); }

store::Recordset account_row(store::Database& db, const std::string& key) {
  return db.open_recordset("SELECT* FROM CADA where CODIGO = " + store::sql_quote(key));
}

bool mandatory_fields(ui::Runtime& rt, ui::Form& f) {
  if (f["D1"].text().empty()) {
    rt.message("O campo [Operação], não pode ficar em branco.");
    rt.set_focus(f["D1"]);
    return false;
  }
  if (f["D6"].text().empty()) {
    rt.message("O campo [Histórico], não pode ficar em branco.");
    rt.set_focus(f["D6"]);
    return false;
  }
  return true;
}

void put(store::Recordset& rs, const char* column, const Value& value) {
  ui::resume_style([&] { rs[column] = value; });
}

// An indexed column that already holds the value is left as it is: writing
// it again would rewrite its index entries, and the commit would write more.
void keep_or_put(store::Recordset& rs, const char* column, const Value& value) {
  Value stored = rs[column].value();
  if (!stored.is_null() && stored.text() == value.text()) return;
  put(rs, column, value);
}

std::string field_date(const ui::Form& f, const char* name) { return format(Value(f[name].text()), "##/##/####"); }

// The row becomes the payment: its issue date and amount are those of the payment.
bool settle_row(store::Database& db, const ui::Form& f) {
  store::Recordset rs = account_row(db, f["NN"].text());
  if (rs.eof()) return false;
  rs.edit();
  keep_or_put(rs, "CODIGO", f["NN"].text());
  keep_or_put(rs, "D1", f["D1"].text());
  put(rs, "D2", ui::column_value(field_date(f, "PG")));
  keep_or_put(rs, "D3", ui::column_value(field_date(f, "D3")));
  keep_or_put(rs, "D4", f["D4"].text());
  put(rs, "D5", ui::column_value(f["VP"].text()));
  for (const char* name : {"D6", "D7"}) put(rs, name, f[name].text());
  keep_or_put(rs, "D9", f["D9"].text());
  put(rs, "D8", "");
  put(rs, "D10", "");
  put(rs, "BX", "F");
  for (const char* name : {"VP", "DVP", "G1", "G2", "G3"}) put(rs, name, ui::column_value(f[name].text()));
  put(rs, "PG", ui::column_value(field_date(f, "PG")));
  ui::resume_style([&] { rs.update(); });
  return true;
}

// What was not paid stays owed as a new open account, with the old dates.
void re_issue(store::Database& db, const ui::Form& f) {
  std::string key = store::next_key(db, store::keys::kAccount);
  store::Recordset rs = account_row(db, key);
  if (!rs.eof()) return;
  rs.add_new();
  put(rs, "CODIGO", key);
  put(rs, "D1", f["D1"].text());
  put(rs, "D2", ui::column_value(ui::stored_date(f["D2"].text())));
  put(rs, "D3", ui::column_value(ui::stored_date(f["D3"].text())));
  put(rs, "D4", f["D4"].text());
  put(rs, "D5", Value(money_in(f["D5"]) - money_in(f["VP"])));
  for (const char* name : {"D6", "D7", "D9"}) put(rs, name, f[name].text());
  for (const char* name : {"D8", "D10", "NOME", "GRUPO"}) put(rs, name, "");
  put(rs, "BX", "A");
  rs.update();
}

// Dated the day of posting, whatever the date of the payment.
void add_cash_row(store::Database& db, ui::Runtime& rt, const ui::Form& f, bool debit) {
  std::string key = store::next_key(db, store::keys::kCash);
  store::Recordset rs = db.open_recordset("SELECT* FROM Cada where codigo = " + store::sql_quote(key));
  rs.add_new();
  put(rs, "codigo", key);
  put(rs, "A1", Value(rt.host().today().date_only()));
  put(rs, "A2", debit ? "Débito" : "Crédito");
  put(rs, "A3", f["D4"].text());
  put(rs, "A4", f["D7"].text());
  put(rs, "A5", ui::column_value(f["VP"].text()));
  put(rs, "A6", debit ? f["D6"].text() + " (*) " : f["D9"].text());
  put(rs, "PLANO", "");
  put(rs, "NOME", "");
  rs.update();
}

// The key and its row in one unit, so that another station cannot take the key between.
void cash_line(ui::Runtime& rt, const ui::Form& f, bool debit) {
  store::Database db = store::Workspace::open_database("\\Caixa.Mdb");
  store::Database::Transaction unit(db);
  add_cash_row(db, rt, f, debit);
  unit.commit();
}

void post_to_cash(ui::Runtime& rt, const ui::Form& f) {
  const std::string& kind = f["D1"].text();
  if (kind != "Pagar" && kind != "Receber") return;
  bool debit = kind == "Pagar";
  const char* question = debit ? "Confirma débito no caixa?" : "Confirma credito o caixa?";
  if (rt.message(question, ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes) return;
  ui::resume_style([&] { cash_line(rt, f, debit); });
}

}  // namespace

void finish(ui::Runtime& rt, BxxForm& f) {
  if (f.after_change) f.after_change();
  rt.wait_pointer(false);
  rt.close("bxx");
}

void confirm_settlement(ui::Runtime& rt, BxxForm& f) {
  if (!mandatory_fields(rt, f)) return;
  rt.wait_pointer(true);
  bool settled = false;
  bool short_paid = money_in(f["VP"]) < money_in(f["D5"]);
  // The settlement and its re-issue commit together; the questions come after.
  try {
    store::Database db = accounts();
    store::Database::Transaction unit(db);
    ui::resume_style([&] { settled = settle_row(db, f); });
    if (short_paid) {
      f["NN"].set_text("");
      ui::resume_style([&] { re_issue(db, f); });
    }
    unit.commit();
  } catch (const Error&) {
    rt.wait_pointer(false);  // the file was held elsewhere: nothing written, the user may try again
    return;
  }
  if (settled) rt.message("Conta baixada com sucesso.");
  if (short_paid)
    rt.message(
        "Atenção está conta teve relançamento automático, pois o valor recebido foi menor que o valor devido.");
  post_to_cash(rt, f);
  finish(rt, f);
}

void alter_account(ui::Runtime& rt, BxxForm& f) {
  if (!mandatory_fields(rt, f)) return;
  store::Database db = accounts();
  store::Recordset rs = account_row(db, f["NN"].text());
  if (!rs.eof()) {
    rs.edit();
    rs["CODIGO"] = f["NN"].text();
    rs["D1"] = f["D1"].text();
    rs["D2"] = ui::column_value(field_date(f, "D2"));
    rs["D3"] = ui::column_value(field_date(f, "D3"));
    rs["D4"] = f["D4"].text();
    rs["D5"] = ui::column_value(f["D5"].text());
    for (const char* name : {"D6", "D7", "D9"}) rs[name] = f[name].text();
    rs["D8"] = "";
    rs["D10"] = "";
    rs.update();
  }
  rt.message("Alteração realizada com sucesso.");
  finish(rt, f);
}

void delete_account(ui::Runtime& rt, BxxForm& f) {
  if (rt.message("Deseja realmente apagar está conta?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
    return;
  if (f["NN"].text().empty()) return (void)rt.message("Não há lançamento para apagar.");
  bool done = ui::jump_style(rt, [&] {
    store::Database db = accounts();
    store::Recordset rs = account_row(db, f["NN"].text());
    if (!rs.eof()) rs.delete_current();
  });
  if (!done) return;
  rt.message("Exclusão realizada com sucesso.");
  finish(rt, f);
}

}  // namespace mz::finance::bxx
