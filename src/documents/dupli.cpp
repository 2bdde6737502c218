// DUPLI: fills in, keeps and prints a trade bill. A bill posts to no account.
#include <memory>

#include "core/format.h"
#include "documents/fields.h"
#include "documents/lookups.h"
#include "documents/screens.h"
#include "store/database.h"
#include "store/shop_identity.h"
#include "store/keys.h"
#include "store/sql_text.h"
#include "ui/report.h"

namespace mz::documents {

using ui::ControlKind;

namespace {

// In the order of entry; each column of DP has its field's name, A1 being CODIGO.
constexpr FieldEntry kBill[] = {
    {"A1", "DUPLICATA Nº:", ControlKind::TextBox},
    {"A2", "FATURA Nº:", ControlKind::TextBox},
    {"A3", "FATURA VALOR:", ControlKind::TextBox},
    {"A4", "DUPLICATA VALOR:", ControlKind::TextBox},
    {"A5", "VENCIMENTO:", ControlKind::MaskedBox},
    {"A6", "DESCONTO DE:", ControlKind::TextBox},
    {"A7", "ATÉ:", ControlKind::TextBox},
    {"A8", "CONDIÇÕES ESPECIAIS:", ControlKind::TextBox},
    {"A9", "NOME DO SACADO:", ControlKind::ComboBox},
    {"A10", "ENDEREÇO:", ControlKind::TextBox},
    {"A11", "MUNICÍPIO:", ControlKind::TextBox},
    {"A12", "CEP:", ControlKind::TextBox},
    {"A13", "PRAÇA DE PGTO.:", ControlKind::TextBox},
    {"A14", "CNPJ/CPF:", ControlKind::TextBox},
    {"A15", "I.E.:", ControlKind::TextBox},
    {"A16", "VALOR:", ControlKind::TextBox},
    {"A17", "FONE:", ControlKind::TextBox},
};
// The shop's heading lines, columns A1 to A6 of its identity.
constexpr const char* kHeading[] = {"R15", "R16", "R17", "R18", "R19", "R20"};

bool is_money(const std::string& name) { return name == "A3" || name == "A4"; }

store::Database bills() { return store::Workspace::open_database("\\DP.Mdb"); }

store::Recordset bill_row(store::Database& db, const std::string& number) {
  return db.open_recordset("SELECT* FROM DP where CODIGO = " + store::sql_quote(number));
}

// Fills the fields from the bill of that number; false when there is none.
bool load_bill(ui::Form& f, const std::string& number) {
  store::Database db = bills();
  store::Recordset rs = bill_row(db, number);
  if (rs.eof()) return false;
  for (const FieldEntry& field : kBill) {
    std::string name(field.name);
    if (name == "A1") continue;
    if (name == "A5") f[name].set_text(store::data_tela(rs[name]));
    else if (is_money(name)) f[name].set_text(money_text(rs[name]));
    else f[name].set_text(rs[name].text());
  }
  for (const char* name : kHeading) f[name].set_text(rs[name].text());
  return true;
}

void write_bill(store::Recordset& rs, const ui::Form& f) {
  rs["CODIGO"] = f["A1"].text();
  for (const FieldEntry& field : kBill) {
    std::string name(field.name);
    if (name == "A1") continue;
    if (name == "A5") rs[name] = column_value(format(Value(f[name].text()), "##/##/####"));
    else rs[name] = column_value(f[name].text());
  }
  for (const char* name : kHeading) rs[name] = f[name].text();
}

// A blank bill under the next number; the shop's heading stays.
void clear_bill(ui::Form& f) {
  for (const FieldEntry& field : kBill) f[field.name].set_text("");
  f["A3"].set_text("0,00");
  store::Database db = bills();
  f["A1"].set_text(store::next_key(db, store::keys::kTradeBill));
}

}  // namespace

std::unique_ptr<ui::Form> make_dupli(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "DUPLI", "Duplicata");
  ui::Form& f = *form;
  for (const FieldEntry& field : kBill) add_field(f, field);
  for (const char* name : kHeading) f.add(name, ControlKind::TextBox);
  number_field(f["A1"]);
  money_field(f["A3"]);
  date_field(f["A5"]);
  f["A1"].on_lost_focus = [&f] { f["A1"].set_text(format(Value(f["A1"].text()), "00000")); };
  money_field(f["A4"], [&f] { f["A16"].set_text("(" + amount_words(f["A4"].text()) + ")"); });
  f["A9"].on_lost_focus = [&f] {
    auto card = find_customer(f["A9"].text());
    if (!card) return;
    f["A10"].set_text(card->address);
    f["A11"].set_text(card->city);
    f["A12"].set_text(card->postal_code);
    f["A14"].set_text(card->document);
    f["A17"].set_text(card->phone);
  };

  // The number is needed by every operation on a stored bill.
  auto has_number = [&rt, &f] {
    if (!f["A1"].text().empty()) return true;
    rt.message("Duplicata número não pode ficar em branco.");
    rt.set_focus(f["A1"]);
    return false;
  };
  auto grava = [&rt, &f, has_number] {
    if (!has_number()) return;
    if (f["A9"].text().empty()) {
      rt.message("Nome do sacado não pode ficar em branco.");
      return rt.set_focus(f["A9"]);
    }
    store::Database db = bills();
    store::Recordset rs = bill_row(db, f["A1"].text());
    if (rs.eof()) rs.add_new();
    else rs.edit();
    write_bill(rs, f);
    rs.update();
    rt.message("Operação realizada com sucesso.");
  };
  auto apaga = [&rt, &f, has_number] {
    if (!has_number()) return;
    store::Database db = bills();
    store::Recordset rs = bill_row(db, f["A1"].text());
    if (rs.eof()) return (void)rt.message("Duplicata não localizada.");
    if (rt.message("Deseja realmente apagar este registro?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
      return;
    rs.delete_current();
    clear_bill(f);
  };
  auto consulta = [&rt, &f, has_number] {
    if (has_number() && !load_bill(f, f["A1"].text())) rt.message("Duplicata não localizada.");
  };
  // Prints the bill as stored: an unsaved bill selects no row and prints nothing.
  auto report = std::make_shared<ui::Report>(rt, print::Destination::Printer);
  auto imprime = [&rt, &f, report] {
    ui::choose_printer(rt);
    report->data_files = "\\DP.MDB";
    report->report_file_name = "\\DP.rpt";
    report->selection_formula = "{DP.CODIGO} = '" + f["A1"].text() + "'";
    report->action(1);
  };
  f.add("Command16", ControlKind::Button, "Grava").on_click = grava;
  f.add("Command1", ControlKind::Button, "Consulta").on_click = consulta;
  f.add("Command11", ControlKind::Button, "Apaga").on_click = apaga;
  f.add("Command2", ControlKind::Button, "Imprime").on_click = imprime;
  f.add("Command3", ControlKind::Button, "Novo").on_click = [&rt, &f] {
    clear_bill(f);
    rt.set_focus(f["A2"]);
  };
  f.add("Command4", ControlKind::Button, "Pesquisa").on_click = [&rt] { rt.show("BUDP"); };
  f.add("Command7", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("DUPLI"); };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    auto heading = store::shop_identity();
    for (size_t i = 0; i < std::size(kHeading); ++i) f[kHeading[i]].set_text(heading[i]);
    name_combo(f["A9"], customer_names());
    clear_bill(f);
  };
  return form;
}

void show_trade_bill(ui::Runtime& rt, const std::string& number) {
  ui::Form& f = rt.screen("DUPLI");
  f["A1"].set_text(number);
  load_bill(f, number);
  rt.show("DUPLI");
}

}  // namespace mz::documents
