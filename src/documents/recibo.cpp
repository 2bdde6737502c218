// RECIBO: fills in, keeps and prints a receipt. A receipt posts to no
// account and to no cash book.
#include <memory>

#include "core/error.h"
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

// In the order of entry; each column of RECI has its field's name, R1 being CODIGO.
constexpr FieldEntry kFields[] = {
    {"R1", "NÚMERO:", ControlKind::TextBox},
    {"R2", "RECEBEMOS DE:", ControlKind::ComboBox},
    {"R3", "CNPJ/CPF:", ControlKind::TextBox},
    {"R4", "DATA:", ControlKind::MaskedBox},
    {"R5", "ENDEREÇO:", ControlKind::TextBox},
    {"R6", "BAIRRO:", ControlKind::TextBox},
    {"R7", "CIDADE:", ControlKind::TextBox},
    {"R8", "UF:", ControlKind::TextBox},
    {"R9", "R$", ControlKind::TextBox},
    {"R10", "A IMPORTÂNCIA DE:", ControlKind::TextBox},
    {"R11", "REFERENTE:", ControlKind::TextBox},
    {"R12", "BANCO / Nº CHEQUE", ControlKind::TextBox},
    {"R13", "RECEBIDO POR:", ControlKind::ComboBox},
    {"R15", "", ControlKind::TextBox},
    {"R16", "", ControlKind::TextBox},
    {"R17", "", ControlKind::TextBox},
    {"R18", "", ControlKind::TextBox},
    {"R19", "", ControlKind::TextBox},
};
// The shop's heading lines, from the first four columns of its identity.
constexpr const char* kHeading[] = {"R15", "R16", "R17", "R18"};

store::Database receipts() { return store::Workspace::open_database("\\RECI.Mdb"); }

store::Recordset receipt_row(store::Database& db, const std::string& number) {
  return db.open_recordset("SELECT* FROM reci where CODIGO = " + store::sql_quote(number));
}

std::string next_number() {
  store::Database db = receipts();
  return store::next_key(db, store::keys::kReceipt);
}

std::vector<std::string> employee_names() {
  std::vector<std::string> names;
  store::Database db = store::Workspace::open_database("\\SALA.Mdb");
  for (store::Recordset rs = db.open_recordset("Select * From sala order by x2"); !rs.eof(); rs.move_next())
    names.push_back(rs["X2"].text());
  return names;
}

// Fills the fields from the receipt of that number; false when there is none.
bool load_receipt(ui::Form& f, const std::string& number) {
  store::Database db = receipts();
  store::Recordset rs = receipt_row(db, number);
  if (rs.eof()) return false;
  for (const FieldEntry& field : kFields) {
    std::string name(field.name);
    if (name == "R1") continue;
    if (name == "R4") f[name].set_text(store::data_tela(rs[name]));
    else if (name == "R9") f[name].set_text(money_text(rs[name]));
    else f[name].set_text(rs[name].text());
  }
  return true;
}

void write_receipt(store::Recordset& rs, const ui::Form& f) {
  rs["CODIGO"] = f["R1"].text();
  for (const FieldEntry& field : kFields) {
    std::string name(field.name);
    if (name == "R1") continue;
    if (name == "R4") rs[name] = column_value(format(Value(f[name].text()), "00/00/0000"));
    else rs[name] = column_value(f[name].text());
  }
}

// A blank receipt under the next number, dated today, with the shop's heading.
void clear_receipt(ui::Runtime& rt, ui::Form& f) {
  for (const FieldEntry& field : kFields) f[field.name].set_text("");
  auto heading = store::shop_identity();
  for (size_t i = 0; i < std::size(kHeading); ++i) f[kHeading[i]].set_text(heading[i]);
  f["R4"].set_text(today_text(rt));
  f["R1"].set_text(next_number());
}

// Writes as the receipt handlers do: a write that fails, such as a row held
// by another station, is reported and the screen stays as it is.
template <typename Write>
void trapped_write(ui::Runtime& rt, Write write) {
  try {
    write();
  } catch (const Error&) {
    rt.message("Operação não realizada.");
  }
}

}  // namespace

std::unique_ptr<ui::Form> make_recibo(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "RECIBO", "Recibo");
  ui::Form& f = *form;
  for (const FieldEntry& field : kFields) add_field(f, field);
  number_field(f["R1"]);
  date_field(f["R4"]);
  auto report = std::make_shared<ui::Report>(rt, print::Destination::Printer);

  f["R1"].on_lost_focus = [&f] {
    std::string number = f["R1"].text().empty() ? next_number() : format(Value(f["R1"].text()), "00000");
    f["R1"].set_text(number);
    load_receipt(f, number);
  };
  f["R2"].on_lost_focus = [&f] {
    auto card = find_customer(f["R2"].text());
    if (!card) return;
    f["R5"].set_text(card->address);
    f["R6"].set_text(card->district);
    f["R7"].set_text(card->city);
    f["R8"].set_text(card->state);
    f["R3"].set_text(card->document);
  };
  money_field(f["R9"], [&f] { f["R10"].set_text("( " + amount_words(f["R9"].text()) + " )."); });

  auto grava = [&rt, &f] {
    if (f["R2"].text().empty()) return (void)rt.message("O campo [Recebemos de], não pode ficar em branco.");
    if (f["R13"].text().empty()) return (void)rt.message("O campo [Recebido por], não pode ficar em branco.");
    if (f["R11"].text().empty()) return (void)rt.message("O campo [Referente], não pode ficar em branco.");
    trapped_write(rt, [&rt, &f] {
      store::Database db = receipts();
      store::Recordset rs = receipt_row(db, f["R1"].text());
      bool exists = !rs.eof();
      if (exists) {
        rt.message("Este recibo já foi incluido, [Verifique].");
        rs.edit();
      } else {
        rs.add_new();
      }
      write_receipt(rs, f);
      rs.update();
      rt.message(exists ? "Alteração realizada com sucesso." : "Inclusão realizada com sucesso.");
    });
  };
  auto limpa = [&rt, &f] {
    clear_receipt(rt, f);
    rt.set_focus(f["R2"]);
  };
  auto apaga = [&rt, &f] {
    if (f["R2"].text().empty()) return (void)rt.message("Realize a consulta, para depois apagar.");
    store::Database db = receipts();
    store::Recordset rs = receipt_row(db, f["R1"].text());
    if (rs.eof()) return (void)rt.message("Recibo não localizado.");
    if (rt.message("Deseja realmente apagar este recibo?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
      return;
    bool deleted = false;
    trapped_write(rt, [&] {
      rs.delete_current();
      deleted = true;
    });
    if (!deleted) return;
    rt.message("Exclusão realizada com sucesso.");
    clear_receipt(rt, f);
  };
  auto imprime = [&rt, &f, report] {
    ui::choose_printer(rt);
    std::string number = f["R1"].text();
    store::Database db = receipts();
    if (receipt_row(db, number).eof()) return (void)rt.message("Recibo não localizado.");
    report->data_files = "\\reci.MDB";
    report->selection_formula = "{RECI.CODIGO} = '" + number + "'";
    report->report_file_name = "\\RECI.rpt";
    report->action(1);
  };
  f.add("Command16", ControlKind::Button, "Grava").on_click = grava;
  f.add("sdf", ControlKind::Button, "Limpa").on_click = limpa;
  f.add("ghg", ControlKind::Button, "Apaga").on_click = apaga;
  f.add("hjh", ControlKind::Button, "Pesquisa").on_click = [&rt] { rt.show("BUSRECI"); };
  f.add("jkj", ControlKind::Button, "Imprime").on_click = imprime;
  f.add("nmn", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("RECIBO"); };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    name_combo(f["R13"], employee_names());
    name_combo(f["R2"], customer_names());
    clear_receipt(rt, f);
  };
  return form;
}

void show_receipt(ui::Runtime& rt, const std::string& number) {
  ui::Form& f = rt.screen("RECIBO");
  f["R1"].set_text(number);
  load_receipt(f, number);
  rt.show("RECIBO");
}

}  // namespace mz::documents
