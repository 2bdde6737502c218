#include "records/cadastro/card.h"

#include <algorithm>
#include <iterator>

#include "core/input_helpers.h"
#include "core/text.h"
#include "store/names.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::records::cadastro {

using ui::ControlKind;

namespace {

constexpr CardField kCard[] = {
    {"A1", "NOME / RAZÃO SOCIAL:", ControlKind::ComboBox, Stored::Text,
     " INICIE DIGITANDO O NOME OU RAZÃO SOCIAL DO CADASTRO E TECLE [ENTER]."},
    {"A3", "DATA DO CADASTRO:", ControlKind::MaskedBox, Stored::Date, " DIGITE A DATA DO CADASTRO E TECLE [TAB]."},
    {"A4", "TELEFONE:", ControlKind::TextBox, Stored::Text, " DIGITE O 1º TELEFONE E TECLE [ENTER]."},
    {"A24", "CPF: (+)", ControlKind::TextBox, Stored::Text, " DIGITE O CPF. SÓ ACEITA CPF CORRETO E TECLE [ENTER]."},
    {"A23", "CNPJ: (+)", ControlKind::MaskedBox, Stored::Cnpj,
     " DIGITE O CNPJ. SÓ ACEITA CNPJ CORRETO E TECLE [ENTER] ."},
    {"A25", "RG / INSC.ESTADUAL:", ControlKind::TextBox, Stored::Text,
     " DIGITE A INSCRIÇÃO ESTADUAL OU RG E TECLE [ENTER]."},
    {"A9", "ENDEREÇO:", ControlKind::TextBox, Stored::Text, " DIGITE O ENDEREÇO E NÚMERO E TECLE [ENTER]."},
    {"A11", "BAIRRO:", ControlKind::TextBox, Stored::Text, " DIGITE O BAIRRO E TECLE [ENTER]."},
    {"A12", "CIDADE:", ControlKind::TextBox, Stored::Text, " DIGITE A CIDADE E TECLE [ENTER]."},
    {"A13", "UF:", ControlKind::ComboBox, Stored::Text, " SELECIONE O ESTADO E TECLE [ENTER]"},
    {"A14", "CEP:", ControlKind::MaskedBox, Stored::Text, " DIGITE O CEP E TECLE [ENTER]."},
    {"D7", "NATURALIDADE:", ControlKind::TextBox, Stored::Text, nullptr},
    {"A34", "DT.NASC.:", ControlKind::MaskedBox, Stored::Date, " DIGITE A DATA DE NASCIMENTO E TECLE [TAB]."},
    {"A31", "RENDA:", ControlKind::TextBox, Stored::Money, " DIGITE A RENDA E TECLE [ENTER]."},
    {"D8", "NOME DO CÔNJUGE:", ControlKind::TextBox, Stored::Text, nullptr},
    {"D17", "PAI:", ControlKind::TextBox, Stored::Text, nullptr},
    {"D18", "MÃE:", ControlKind::TextBox, Stored::Text, nullptr},
    {"D1", "NOME DA EMPRESA:", ControlKind::TextBox, Stored::Text, nullptr},
    {"D3", "TELEFONE:", ControlKind::TextBox, Stored::Text, nullptr},
    {"D2", "ENDEREÇO:", ControlKind::TextBox, Stored::Text, nullptr},
    {"A27", "NOME:", ControlKind::TextBox, Stored::Text, " DIGITE O NOME DA REFERÊNCIA E TECLE [ENTER]."},
    {"A30", "TELEFONE:", ControlKind::TextBox, Stored::Text, " DIGITE O TELEFONE DA REFERÊNCIA E TECLE [ENTER]."},
    {"A28", "NOME:", ControlKind::TextBox, Stored::Text, " DIGITE O NOME DA REFERÊNCIA E TECLE [ENTER]."},
    {"A29", "TELEFONE:", ControlKind::TextBox, Stored::Text, " DIGITE O TELEFONE DA REFERÊNCIA E TECLE [ENTER]."},
    {"A26", "CLASSIFICAÇÃO:", ControlKind::ComboBox, Stored::Text,
     " DIGITE OU SELECIONE A CLASSIFICAÇÃO E TECLE [ENTER]. PARA CADASTRAR NOVA OPÇÃO CLIQUE NA ÍCONE DA MÃO AO "
     "LADO."},
    {"D16", "BLOQUEADO:", ControlKind::ComboBox, Stored::Text, nullptr},
    {"A36", "OBSERVAÇÕES:", ControlKind::TextBox, Stored::Text,
     " DIGITE AS OBSERVAÇÕES E CLIQUE NO BOTÃO INCLUI. PARA SAIR DESTE CAMPO TECLE [Tab]."},
    {"D5", "E-MAIL:", ControlKind::TextBox, Stored::Text, nullptr},
};

const char* const kStates[] = {"AC", "AL", "AM", "AP", "BA", "CE", "DF", "ES", "EX", "GO", "MA", "MG", "MS", "MT",
                               "PA", "PB", "PE", "PI", "PR", "RJ", "RN", "RR", "RS", "SC", "SE", "SP", "TO"};

const CardField* card_field(const std::string& column) {
  for (const CardField& field : kCard)
    if (store::same_name(field.name, column)) return &field;
  return nullptr;
}

// A combo shows its item as chosen when the text is one of them.
void show_text(ui::Control& c, const std::string& text) {
  c.set_text(text);
  auto it = std::find(c.items.begin(), c.items.end(), text);
  c.list_index = it == c.items.end() ? -1 : static_cast<int>(it - c.items.begin());
}

std::string screen_text(const CardField& field, store::Recordset& rs) {
  Value value = rs[field.name];
  switch (field.stored) {
    case Stored::Date: return store::data_tela(value);
    case Stored::Money: {
      std::string money = ui::money_text(value);
      return money.empty() ? "0,00" : money;
    }
    default: return value.text();
  }
}

std::string column_text(const CardField& field, const std::string& text) {
  switch (field.stored) {
    case Stored::Date: return ui::stored_date(text);
    // An untouched CNPJ mask holds no digits and stands for no CNPJ.
    case Stored::Cnpj: return trim(tira_caracteres(text, "/-")).empty() ? std::string() : text;
    default: return text;
  }
}

}  // namespace

CadastroForm::CadastroForm(ui::Runtime& rt) : ui::Form(rt, "Cadastro", "Cadastro") {}

store::Database customers() { return store::Workspace::open_database("\\CADA.MDB"); }

store::Recordset customer_where(store::Database& db, const std::string& column, const std::string& value) {
  return db.open_recordset("SELECT* FROM CADA where " + column + " = " + store::sql_quote(value));
}

void add_card(CadastroForm& f) {
  f.add("LNN", ControlKind::Label, "CÓDIGO:");
  ui::Control& code = f.add("NN", ControlKind::TextBox);
  code.tab_stop = false;  // reached by the mouse only: the card starts at the name
  ui::number_field(code);
  for (const CardField& field : kCard) {
    if (std::string(field.name) == "A27") f.add("Referencias", ControlKind::Label, "REFERÊNCIAS ").bold = true;
    if (std::string(field.name) == "A36") add_dependants(f);
    ui::Control& c = ui::add_field(f, field.name, field.kind, field.caption);
    if (field.stored == Stored::Date) ui::date_field(c);
    if (field.help)
      c.on_got_focus = [&f, help = std::string(field.help)] { f["StatusBar1"].set_text(help); };
  }
  f["A23"].mask = "########/####-##";
  f["A14"].mask = "#####-###";
  ui::money_field(f["A31"]);
  f["A13"].items.assign(std::begin(kStates), std::end(kStates));
  f["D16"].items = {"SIM", "NÃO"};
  // Notes run over several lines: Enter starts a new one, Tab leaves the box.
  f["A36"].multi_line = true;
  f["A26"].on_got_focus = [&f] {
    f["StatusBar1"].set_text(card_field("A26")->help);
    f["A26"].dropped_down = true;
  };
  f.add("Lnr", ControlKind::Label, "NR.REGISTROS:");
  f.add("nr", ControlKind::Label);
}

void CadastroForm::clear_card() {
  for (const CardField& field : kCard) show_text((*this)[field.name], "");
  (*this)["A31"].set_text("0,00");
  (*this)["NN"].set_text("");
  (*this)["X1"].set_text("");
  (*this)["X2"].set_text("");
  show_dependants("");
  looked_up = false;
}

void CadastroForm::show_customer(store::Recordset& rs) {
  (*this)["NN"].set_text(rs["CODIGO"].text());
  for (const CardField& field : kCard) show_text((*this)[field.name], screen_text(field, rs));
  show_dependants((*this)["A1"].text());
  looked_up = true;
}

bool CadastroForm::show_customer_where(const std::string& column, const std::string& value) {
  store::Database db = customers();
  store::Recordset rs = customer_where(db, column, value);
  if (rs.eof()) return false;
  show_customer(rs);
  return true;
}

void CadastroForm::write_customer(store::Recordset& rs, bool is_new) const {
  if (is_new)
    for (size_t i = 0; i < rs.field_count(); ++i)
      if (!card_field(rs[i].name())) rs[i] = Value(std::string());
  rs["CODIGO"] = Value((*this)["NN"].text());
  for (const CardField& field : kCard) rs[field.name] = Value(column_text(field, (*this)[field.name].text()));
}

}  // namespace mz::records::cadastro
