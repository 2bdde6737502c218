#include "stock/pedido/heading.h"

#include "core/text.h"
#include "records/option_list.h"
#include "stock/balance.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::stock::pedido {

using ui::ControlKind;

namespace {

constexpr records::OptionList kPaymentForms{"\\fp.mdb", "A1", "A1", "Digite a nova forma e clique no botão OK "};

constexpr int kAddresses = 24;

std::string address_name(int n) { return "B" + std::to_string(n); }

// The fields of the first tab after the order's own, in their order of
// entry, with the captions they stand under.
const ui::FieldEntry kAddressFields[kAddresses] = {
    {"B1", "TELEFONE", ControlKind::TextBox},
    {"B2", "FAX", ControlKind::TextBox},
    {"B3", "ENDEREÇO", ControlKind::TextBox},
    {"B4", "BAIRRO", ControlKind::TextBox},
    {"B5", "CIDADE", ControlKind::TextBox},
    {"B6", "UF", ControlKind::TextBox},
    {"B7", "CEP", ControlKind::TextBox},
    {"B8", "CONTATO", ControlKind::TextBox},
    {"B9", "ENDEREÇO DE COBRANÇA", ControlKind::TextBox},
    {"B10", "BAIRRO", ControlKind::TextBox},
    {"B11", "CIDADE", ControlKind::TextBox},
    {"B12", "UF", ControlKind::TextBox},
    {"B13", "CEP", ControlKind::TextBox},
    {"B14", "ENDEREÇO DE ENTREGA", ControlKind::TextBox},
    {"B15", "BAIRRO", ControlKind::TextBox},
    {"B16", "CIDADE", ControlKind::TextBox},
    {"B17", "UF", ControlKind::TextBox},
    {"B18", "CEP", ControlKind::TextBox},
    {"B19", "CNPJ", ControlKind::TextBox},
    {"B20", "I.ESTADUAL", ControlKind::TextBox},
    {"B21", "FORMA DE PAGAMENTO", ControlKind::ComboBox},
    {"B22", "PREVISÃO ENTREGA", ControlKind::ComboBox},
    {"B23", "OBSERVAÇÕES", ControlKind::TextBox},
    {"B24", "POSIÇÃO DO PEDIDO", ControlKind::ComboBox},
};

// What the customer card gives the order: field, and the card's column.
struct CardColumn {
  const char* field;
  const char* column;
};
const CardColumn kFromCard[] = {
    {"B1", "A8"},   {"B2", "A4"},   {"B3", "A6"},   {"B4", "A9"},   {"B5", "A11"},
    {"B6", "A12"},  {"B7", "A13"},  {"B8", "A14"},  {"B9", "A16"},  {"B11", "A19"},
    {"B12", "A20"}, {"B13", "A21"}, {"B19", "A23"}, {"B20", "A25"},
};

// The usual delivery terms; the field takes any other text as well.
const char* const kForecasts[] = {"IMEDIATA", "15 DIAS", "30 DIAS", "45 DIAS", "60 DIAS", "90 DIAS"};

store::Database customers() { return store::Workspace::open_database("\\CADA.Mdb"); }

}  // namespace

void add_heading(ui::Runtime& rt, ui::Form& f, std::function<void()> leaving_number) {
  size_t first = f.controls().size();
  ui::Control& ee1 = ui::add_field(f, "EE1", ControlKind::TextBox, "CONTROLE");
  ui::number_field(ee1);
  ee1.on_lost_focus = std::move(leaving_number);
  ui::date_field(ui::add_field(f, "EE2", ControlKind::MaskedBox, "DATA:"));
  ui::Control& ee3 = ui::add_field(f, "EE3", ControlKind::ComboBox, "CLIENTE");
  ee3.on_lost_focus = [&f] { look_up_customer(f); };
  ui::add_field(f, "EE4", ControlKind::TextBox, "NR.PEDIDO");
  ui::add_field(f, "EE5", ControlKind::ComboBox, "REPRESENTANTE");
  for (const ui::FieldEntry& field : kAddressFields) {
    ui::add_field(f, field);
    // The payment forms are kept beside their list.
    if (field.name == "B21")
      f.add("Command4", ControlKind::Button, "F5").on_click = [&rt, &f] { maintain_payment_forms(rt, f); };
  }
  f["B23"].multi_line = true;
  f["B24"].items = {kOpen, kInvoiced};
  for (size_t i = first; i < f.controls().size(); ++i) f.controls()[i]->page = kHeadingPage;
}

void load_heading(ui::Form& f) {
  std::vector<std::string> clients, representatives;
  store::Database db = customers();
  // The names and classifications alone: the file holds thousands of cards.
  for (store::Recordset rs = db.open_recordset("select A1, A2, A26 from CADA order by A1"); !rs.eof();
       rs.move_next()) {
    std::string kind = ucase(rs["A26"].text());
    if (kind == "CLIENTE") clients.push_back(rs["A1"].text());
    if (kind == "REPRESENTANTE") representatives.push_back(rs["A2"].text());
  }
  ui::name_combo(f["EE3"], std::move(clients));
  ui::name_combo(f["EE5"], std::move(representatives));
  f["B21"].items = records::list_items(kPaymentForms);
  f["B22"].items.assign(std::begin(kForecasts), std::end(kForecasts));
  f["B24"].set_text(kOpen);
}

void look_up_customer(ui::Form& f) {
  const std::string name = f["EE3"].text();
  if (name.empty()) return;
  store::Database db = customers();
  store::Recordset rs = db.open_recordset("SELECT* FROM CADA where A1 = " + store::sql_quote(name));
  if (rs.eof()) return;
  for (const CardColumn& c : kFromCard) f[c.field].set_text(rs[c.column].text());
}

void maintain_payment_forms(ui::Runtime& rt, ui::Form& f) { records::add_or_remove(rt, kPaymentForms, f["B21"]); }

std::vector<std::pair<std::string, std::string>> repeated_columns(ui::Form& f) {
  std::vector<std::pair<std::string, std::string>> columns;
  for (const char* name : {"nr", "TL", "DES"}) columns.emplace_back(ucase(name), f[name].text());
  columns.emplace_back("EE5", f["EE5"].text());
  for (int n = 1; n <= kAddresses; ++n) columns.emplace_back(address_name(n), f[address_name(n)].text());
  for (int n = 1; n <= kSlots; ++n) {
    std::string caption = "A" + std::to_string(n);
    columns.emplace_back(caption, f[caption].text());
  }
  return columns;
}

void show_heading(ui::Form& f, store::Recordset& rs) {
  f["DES"].set_text(rs["DES"].text());
  f["EE5"].set_text(rs["EE5"].text());
  f["EE3"].set_text(rs["NOME"].text());
  f["EE2"].set_text(store::data_tela(rs["DATA"]));
  f["EE4"].set_text(rs["TIPO"].text());
  f["TT"].set_text(rs["TOTAL"].text());
  for (int n = 1; n <= kAddresses; ++n) f[address_name(n)].set_text(rs[address_name(n)].text());
}

void clear_addresses(ui::Form& f) {
  for (int n = 1; n <= kAddresses; ++n) f[address_name(n)].set_text("");
}

}  // namespace mz::stock::pedido
