// NP: fills in and prints a promissory note, front and back. Nothing is
// kept: P1IMP holds the last note printed, for the templates to read.
#include <memory>

#include "core/format.h"
#include "core/regional.h"
#include "core/text.h"
#include "documents/fields.h"
#include "documents/lookups.h"
#include "documents/screens.h"
#include "store/database.h"
#include "store/shop_identity.h"
#include "ui/report.h"

namespace mz::documents {

using ui::ControlKind;

namespace {

// In the order of the form; each is also a column of P1IMP.
constexpr FieldEntry kFields[] = {
    {"CODi", "NÚMERO:", ControlKind::TextBox},
    {"A1", "VENCIMENTO:", ControlKind::ComboBox},
    {"A2", "", ControlKind::ComboBox},
    {"A3", "", ControlKind::TextBox},
    {"A4", "VALOR:", ControlKind::TextBox},
    {"A5", "PAGAR:", ControlKind::TextBox},
    {"A6", "CREDOR:", ControlKind::TextBox},
    {"A7", "EMITENTE:", ControlKind::ComboBox},
    {"A8", "C.P.F.: / CNPJ.:", ControlKind::TextBox},
    {"A9", "ENDEREÇO", ControlKind::TextBox},
    {"A10", "PAGÁVEL EM:", ControlKind::TextBox},
    {"A11", "NOME:", ControlKind::TextBox},
    {"A12", "C.P.F.: / CNPJ.:", ControlKind::TextBox},
    {"A14", "NOME:", ControlKind::TextBox},
    {"A15", "DATA DA EMISSÃO:", ControlKind::TextBox},
    // The second guarantor's document, then the endorsement on the back.
    {"A16", "C.P.F.: / CNPJ.:", ControlKind::TextBox},
    {"A17", "ENDOSSO - PAGUE-SE A:", ControlKind::TextBox},
    {"A18", "C.P.F.: / CNPJ.:", ControlKind::TextBox},
    {"A19", "C.P.F.: / CNPJ. DO ENDOSSANTE:", ControlKind::TextBox},
};
// The documents, printed as bare digits.
bool is_document(const std::string& name) {
  return name == "A8" || name == "A12" || name == "A16" || name == "A18" || name == "A19";
}

// "SÃO PAULO, 22 DE NOVEMBRO DE 2026.": the shop's city (its second address
// line) and today's date in words.
std::string issue_text(ui::Runtime& rt) {
  Date today = rt.host().today();
  return trim(store::shop_identity()[3]) + ", " + std::to_string(today.day()) + " DE " +
         ucase(format(Value(today), "mmmm")) + " DE " + std::to_string(today.year()) + ".";
}

// An empty note under `number`, due in this year, issued today.
void new_note(ui::Runtime& rt, ui::Form& f, const std::string& number) {
  for (const FieldEntry& field : kFields) f[field.name].set_text("");
  f["CODi"].set_text(number);
  f["A3"].set_text(std::to_string(rt.host().today().year()));
  f["A15"].set_text(issue_text(rt));
}

void write_note(const ui::Form& f) {
  store::Database db = store::Workspace::open_database("\\P1IMP.MDB");
  db.execute("DELETE FROM P1IMP");
  store::Recordset rs = db.open_recordset("SELECT * FROM P1IMP");
  rs.add_new();
  for (const FieldEntry& field : kFields) {
    std::string name(field.name), text = f[name].text();
    if (name == "A4") text = format(Value(text), "###,##0.00") + " ( " + amount_words(text) + " ) ";
    else if (is_document(name)) text = format(Value(text), "##############");
    rs[name] = text;
  }
  rs.update();
}

// The number of the note after this one; "0001" when there is none.
std::string following(const std::string& number) {
  auto n = parse_number(number);
  return n ? format(Value(*n + 1), "0000") : "0001";
}

}  // namespace

std::unique_ptr<ui::Form> make_np(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "NP", "Nota Promissória");
  ui::Form& f = *form;
  for (const FieldEntry& field : kFields) {
    if (field.name == "A11") f.add("Label1", ControlKind::Label, "AVALISTA(S):");
    add_field(f, field);
  }
  for (int day = 1; day <= 31; ++day) f["A1"].items.push_back(std::to_string(day));
  for (int month = 1; month <= 12; ++month) f["A2"].items.push_back(ucase(month_name(month)));
  number_field(f["CODi"]);
  number_field(f["A3"]);
  money_field(f["A4"], [&f] { f["A5"].set_text("( " + amount_words(f["A4"].text()) + " ) "); });
  f["A7"].on_lost_focus = [&f] {
    auto card = find_customer(f["A7"].text());
    if (!card) return;
    f["A9"].set_text(card->address);
    f["A8"].set_text(card->document);
  };

  auto front = std::make_shared<ui::Report>(rt, print::Destination::Printer);
  auto back = std::make_shared<ui::Report>(rt, print::Destination::Printer);
  f.add("Command3", ControlKind::Button, "Imprime frente").on_click = [&rt, &f, front] {
    if (f["A7"].text().empty() || f["A4"].text().empty())
      return (void)rt.message("Preencha os campos corretamente antes de concluir.");
    write_note(f);
    front->data_files = "\\P1IMP.MDB";
    front->report_file_name = "\\P1IMP.RPT";
    front->action(1);
  };
  // The back reads the note the front left in P1IMP.
  f.add("Command1", ControlKind::Button, "Imprime verso").on_click = [back] {
    back->data_files = "\\P1IMP.MDB";
    back->report_file_name = "\\P2IMP.RPT";
    back->action(1);
  };
  f.add("sd", ControlKind::Button, "Novo").on_click = [&rt, &f] {
    new_note(rt, f, following(f["CODi"].text()));
    rt.set_focus(f["A1"]);
  };
  f.add("Command7", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("NP"); };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    name_combo(f["A7"], customer_names());
    new_note(rt, f, "0001");
  };
  return form;
}

}  // namespace mz::documents
