#include "stock/forne/card.h"

#include <string_view>
#include <vector>

#include "core/error.h"
#include "core/format.h"
#include "core/input_helpers.h"
#include "core/text.h"
#include "stock/forne/contacts.h"
#include "store/keys.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::stock::forne {

using ui::ControlKind;

namespace {

// In the order of entry.
constexpr ui::FieldEntry kFields[] = {
    {"A1", "CÓDIGO", ControlKind::TextBox},
    {"A2", "NOME", ControlKind::ComboBox},
    {"A3", "NOME FANTASIA", ControlKind::TextBox},
    {"A4", "DT.CADASTRO", ControlKind::MaskedBox},
    {"A5", "TELEFONE 1", ControlKind::TextBox},
    {"A6", "TELEFONE 2", ControlKind::TextBox},
    {"A7", "FAX", ControlKind::TextBox},
    {"A8", "CNPJ / CPF", ControlKind::MaskedBox},
    {"A9", "INSC.ESTADUAL", ControlKind::TextBox},
    {"A10", "ENDEREÇO", ControlKind::TextBox},
    {"A11", "BAIRRO", ControlKind::TextBox},
    {"A14", "CIDADE", ControlKind::TextBox},
    {"A15", "UF", ControlKind::TextBox},
    {"A16", "CEP", ControlKind::TextBox},
    {"A17", "BANCO", ControlKind::TextBox},
    {"A18", "AGÊNCIA", ControlKind::TextBox},
    {"A19", "CONTA", ControlKind::TextBox},
    {"A20", "LINHA DE PRODUTOS", ControlKind::TextBox},
    {"A21", "SITE", ControlKind::TextBox},
    {"A24", "TRANSPORTADORA UTILIZADA", ControlKind::ComboBox},
    {"A34", "OBSERVAÇÕES", ControlKind::TextBox},
};

// The list's columns: code, name, first phone, line of products.
const std::vector<std::string> kListHeading = {"CÓDIGO", "NOME", "TELEFONE 1", "LINHA DE PRODUTOS"};

// The CNPJ/CPF box: plain digits while typing, then the shape each check
// reads, and the full punctuation when a card is shown.
constexpr const char* kTyping = "##############";
constexpr const char* kCpfCheck = "#########-##";
constexpr const char* kCnpjCheck = "########/####-##";
constexpr const char* kCpfShown = "###.###.###-##";
constexpr const char* kCnpjShown = "##.###.###/####-##";

// Lays the box's text out again under another mask, as if typed: what the
// mask's places do not take (the old punctuation, blanks) is dropped.
void remask(ui::Control& box, const char* mask) {
  std::string text = box.text();
  box.mask = mask;
  box.set_text("");
  box.sel_start = box.sel_length = 0;
  for (char32_t ch : to_u32(text)) ui::type_masked(box, ch);
}

// The number as a8 keeps it: what was typed into the mask in force, its
// punctuation left out; with no mask, the text as it stands.
std::string stored_document(const ui::Control& box) {
  if (box.mask.empty()) return box.text();
  std::u32string text = to_u32(box.text()), typed;
  for (size_t i = 0; i < text.size() && i < box.mask.size(); ++i)
    if (box.mask[i] == '#') typed += text[i];
  return to_utf8(typed);
}

// A stored number with the punctuation of its kind, chosen by its trimmed
// length; any other length is shown as it stands, with no mask.
void show_document(ui::Control& box, const std::string& stored) {
  box.mask.clear();
  box.set_text(stored);
  size_t length = len(trim(stored));
  if (length == 14) remask(box, kCnpjShown);
  else if (length == 11) remask(box, kCpfShown);
}

// Digits only while the focus is in the box. Leaving it, 11 digits must be a
// valid CPF and 14 a valid CNPJ; a wrong number is emptied and keeps the
// focus, any other length is emptied, and an empty box passes.
void document_box(ui::Runtime& rt, ui::Control& box) {
  box.on_got_focus = [&box] {
    remask(box, kTyping);
    box.sel_start = 0;
    box.sel_length = len(box.text());
  };
  box.on_lost_focus = [&rt, &box] {
    size_t digits = len(box.text());
    if (digits == 0) return;
    if (digits != 11 && digits != 14) return box.set_text("");
    bool cpf = digits == 11;
    remask(box, cpf ? kCpfCheck : kCnpjCheck);
    if ((cpf ? valida_cpf(box.text()) : valida_cnpj(box.text())) == "True") return;
    box.set_text("");
    rt.set_focus(box);
  };
}

// Every column of the row from its field, as text ("" rather than null).
void write_card(store::Recordset& rs, const ui::Form& f) {
  for (const ui::FieldEntry& field : kFields) {
    const ui::Control& c = f[field.name];
    if (field.name == "A4") rs[field.name] = Value(ui::stored_date(c.text()));
    else if (field.name == "A8") rs[field.name] = Value(stored_document(c));
    else rs[field.name] = Value(c.text());
  }
}

// Leaving A2: a supplier of that name comes onto the card, the first one
// when two share it; an unknown name stays for a new card.
void find_by_name(ui::Form& f) {
  store::Database db = suppliers();
  store::Recordset rs = db.open_recordset("SELECT * FROM cli WHERE a2 =  " + store::sql_quote(f["A2"].text()));
  if (!rs.eof()) load_card(f, rs);
}

}  // namespace

store::Database suppliers() { return store::Workspace::open_database("\\FORNEX.MDB"); }

store::Recordset supplier_row(store::Database& db, const std::string& code) {
  return db.open_recordset("SELECT * FROM cli WHERE a1 =  " + store::sql_quote(code));
}

void add_card(ui::Runtime& rt, ui::Form& f) {
  for (const ui::FieldEntry& field : kFields) ui::add_field(f, field);
  f["A1"].enabled = false;  // the program gives the code when the card is first kept
  ui::name_combo(f["A2"], {});
  f["A2"].on_lost_focus = [&f] { find_by_name(f); };
  ui::date_field(f["A4"]);
  document_box(rt, f["A8"]);
}

void show_supplier(ui::Form& f, store::Recordset& rs) {
  for (const ui::FieldEntry& field : kFields) {
    std::string text = rs[field.name].text();
    if (field.name == "A8") show_document(f["A8"], text);
    else f[field.name].set_text(text);
  }
}

void load_card(ui::Form& f, store::Recordset& rs) {
  show_supplier(f, rs);
  load_contacts(f["Grid1"], f["A1"].text());
}

void record_card(ui::Form& f) {
  store::Database db = suppliers();
  // The new code and its row go in together, so that two stations never
  // take the same code.
  store::Database::Transaction unit(db);
  ui::Control& code = f["A1"];
  if (code.text().empty()) ui::resume_style([&] { code.set_text(store::next_key(db, store::keys::kSupplier)); });
  ui::resume_style([&] {
    store::Recordset rs = supplier_row(db, code.text());
    if (rs.eof()) rs.add_new();
    else rs.edit();
    write_card(rs, f);
    rs.update();
  });
  unit.commit();
}

void clear_card(ui::Runtime& rt, ui::Form& f) {
  for (const ui::FieldEntry& field : kFields) f[field.name].set_text("");
  f["A8"].mask.clear();
  clear_contacts(f);
  std::vector<std::string> names;
  std::vector<std::vector<std::string>> lines;
  store::Database db = suppliers();
  for (store::Recordset rs = db.open_recordset("SELECT* FROM CLI order BY a2"); !rs.eof(); rs.move_next()) {
    names.push_back(rs["a2"].text());
    lines.push_back({rs["a1"].text(), rs["a2"].text(), rs["a5"].text(), rs["a20"].text()});
  }
  f["A2"].items = std::move(names);
  f["A2"].list_index = -1;
  ui::show_rows(f["Grid2"], kListHeading, lines);
  f["A4"].set_text(ui::today_text(rt));
  f["nr"].set_text(format(Value(static_cast<double>(lines.size())), "000000"));
  rt.set_focus(f["A2"]);
}

}  // namespace mz::stock::forne
