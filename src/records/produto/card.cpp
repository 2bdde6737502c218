#include "records/produto/card.h"

#include "store/keys.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::records::produto {

namespace {

// The columns that are fields of the same name, in Grava's order (GR and
// the date sit between them there).
constexpr const char* kBefore[] = {"X1", "X2"};
constexpr const char* kAfter[] = {"E1", "E2", "E3", "E4", "E5"};
constexpr const char* kMoney[] = {"E7", "E8", "E9", "E10", "E11"};

std::string slot_column(int n) { return "A" + std::to_string(n); }

}  // namespace

std::string slot_field(int n) { return "AX" + std::to_string(n); }

store::Database references() { return store::Workspace::open_database("\\REFE.MDB"); }

store::Recordset reference_row(store::Database& db, const std::string& code) {
  return db.open_recordset("SELECT* FROM GRUPO where GR = " + store::sql_quote(code));
}

void show_reference(ui::Form& f, store::Recordset& rs) {
  f["GR"].set_text(rs["GR"].text());
  for (const char* name : kBefore) f[name].set_text(rs[name].text());
  for (const char* name : kAfter) f[name].set_text(rs[name].text());
  f["E6"].set_text(rs["E6"].text());
  for (const char* name : kMoney) f[name].set_text(rs[name].text());
  for (int n = 1; n <= kSlots; ++n) f[slot_field(n)].set_text(rs[slot_column(n)].text());
}

void write_reference(store::Recordset& rs, const ui::Form& f) {
  for (const char* name : kBefore) rs[name] = f[name].text();
  rs["GR"] = f["GR"].text();
  for (const char* name : kAfter) rs[name] = f[name].text();
  rs["E6"] = ui::stored_date(f["E6"].text());
  for (const char* name : kMoney) rs[name] = f[name].text();
  for (int n = 1; n <= kSlots; ++n) rs[slot_column(n)] = f[slot_field(n)].text();
}

void blank_card(ui::Runtime& rt, ui::Form& f) {
  f["E5"].set_text("0");
  for (const char* name : kMoney) f[name].set_text("0,00");
  f["E6"].set_text(ui::today_text(rt));
  store::Database db = references();
  f["GR"].set_text(store::next_key(db, store::keys::kReference));
  for (int n = 1; n <= kSlots; ++n) f[slot_field(n)].set_text("NÃO");
}

void apply_margin(ui::Form& f, const char* base, const char* margin, const char* price) {
  Currency b = Value(f[base].text()).to_currency();
  Currency m = Value(f[margin].text()).to_currency();
  f[price].set_text(Value(b + b * m / Currency::from_units(100 * Currency::kScale)).text());
}

}  // namespace mz::records::produto
