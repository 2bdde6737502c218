#include "finance/contas/entry.h"

#include <string_view>
#include <vector>

#include "core/error.h"
#include "core/format.h"
#include "core/regional.h"
#include "finance/contas/movement.h"
#include "records/customers.h"
#include "records/option_list.h"
#include "store/keys.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::finance::contas {

using ui::ControlKind;

namespace {

struct EntryField {
  ui::FieldEntry field;
  const char* help;  // shown in BARRA while the field has the focus; null for none
};

// In the order of entry.
const EntryField kFields[] = {
    {{"D1", "OPERAÇÃO:", ControlKind::ComboBox}, " INICIE SELECIONANDO A OPÇÃO PAGAR OU RECEBER E TECLE [ENTER]."},
    {{"D2", "DATA EMISSÃO:", ControlKind::MaskedBox}, " DIGITE A DATA DE EMISSÃO E TECLE [ENTER]."},
    {{"D3", "DATA VENC.:", ControlKind::MaskedBox}, " DIGITE A DATA DE VENCIMENTO E TECLE [ENTER]."},
    {{"D4", "Nº DOC.:", ControlKind::TextBox}, " DIGITE O Nº DOCUMENTO E TECLE [ENTER]."},
    {{"D5", "VALOR:", ControlKind::TextBox}, nullptr},
    {{"D6", "DESCRITIVO:", ControlKind::ComboBox},
     " DIGITE OU SELECIONE O HISTÓRICO E TECLE [ENTER]. PARA CADASTRAR NOVA OPÇÃO CLIQUE NA ÍCONE DA MÃO AO LADO."},
    {{"D7", "TIPO:", ControlKind::ComboBox},
     " DIGITE OU SELECIONE O TIPO E TECLE [ENTER]. PARA CADASTRAR NOVA OPÇÃO CLIQUE NA ÍCONE DA MÃO AO LADO."},
    {{"Text1", "PLANO DE CONTA:", ControlKind::TextBox},
     " DIGITE OU SELECIONE O PLANO DE CONTA E TECLE [ENTER]. PARA CADASTRAR NOVA OPÇÃO CLIQUE NA ÍCONE DA MÃO AO "
     "LADO."},
    {{"D9", "CLIENTE:", ControlKind::ComboBox}, " CLIQUE NO BOTÃO [PESQUISA], E SELECIONE O CLIENTE."},
    {{"D10", "TELEFONE:", ControlKind::TextBox}, " DIGITE O TELEFONE DO CLIENTE E CLIQUE NO BOTÃO INCLUI."},
};

constexpr records::OptionList kHistories{"\\C8.Mdb", "A1", "A1", ""};
constexpr records::OptionList kTypes{"\\C7.Mdb", "A1", "A1", ""};

store::Recordset account_row(store::Database& db, const std::string& code) {
  return db.open_recordset("SELECT* FROM CADA where CODIGO = " + store::sql_quote(code));
}

// The columns an account shares with the fields, D3 apart.
void show_account(ui::Form& f, store::Recordset& rs) {
  for (const char* name : {"D1", "D4", "D6", "D7", "D9", "D10"}) f[name].set_text(rs[name].text());
  f["D2"].set_text(store::data_tela(rs["D2"].value()));
  f["D5"].set_text(ui::money_text(rs["D5"].value()));
}

// Leaving NN: the number in six digits, and the account of that number on
// the fields when there is one.
void recall(ui::Form& f) {
  ui::Control& nn = f["NN"];
  nn.set_text(format(Value(nn.text()), "000000"));
  store::Database db = accounts();
  store::Recordset rs = account_row(db, nn.text());
  if (rs.eof()) return;
  show_account(f, rs);
  f["D3"].set_text(store::data_tela(rs["D3"].value()));
}

// Leaving Text1: the code typed there gives way to the plan's name, or to
// nothing when GRUPO.mdb has no such code.
void look_up_plan(ui::Form& f) {
  ui::Control& plan = f["Text1"];
  std::string code = plan.text();
  if (code.empty()) return;
  plan.set_text("");
  store::Database db = store::Workspace::open_database("\\GRUPO.mdb");
  store::Recordset rs = db.open_recordset("SELECT* FROM A1 where A2 = " + store::sql_quote(code));
  if (!rs.eof()) plan.set_text(rs["A1"].text());
}

void write_account(store::Recordset& rs, const ui::Form& f) {
  rs["CODIGO"] = Value(f["NN"].text());
  rs["D1"] = Value(f["D1"].text());
  rs["D2"] = ui::column_value(ui::stored_date(f["D2"].text()));
  rs["D3"] = ui::column_value(ui::stored_date(f["D3"].text()));
  rs["D4"] = Value(f["D4"].text());
  rs["D5"] = ui::column_value(f["D5"].text());
  for (const char* name : {"D6", "D7", "D9", "D10", "NOME"}) rs[name] = Value(f[name].text());
  rs["D8"] = Value("");
  rs["GRUPO"] = Value(f["Text1"].text());
  if (f["CN"].checked()) {
    // Settled on entry, at the due date, with no cash line.
    rs["BX"] = Value("F");
    rs["PG"] = ui::column_value(ui::stored_date(f["D3"].text()));
    rs["VP"] = Value(f["D5"].text());
  } else {
    rs["BX"] = Value("A");
  }
}

// The control number and the account written under it, as one unit: a
// number another station took meanwhile makes this row lose silently.
void write_new(store::Database& db, ui::Form& f) {
  store::Database::Transaction unit(db);
  f["NN"].set_text(store::next_key(db, store::keys::kAccount));
  store::Recordset rs = account_row(db, f["NN"].text());
  if (rs.eof()) {
    rs.add_new();
    write_account(rs, f);
    rs.update();
  }
  unit.commit();
}

// Every inclusion leaves a row in dt.Mdb, always this text (the date mask
// over an empty value), which nothing reads.
constexpr const char* kInclusionMark = "00/00/0000";

void note_inclusion() {
  store::Database db = store::Workspace::open_database("\\dt.Mdb");
  db.execute("Insert into Dt (Dt) values (" + store::sql_quote(kInclusionMark) + ");");
}

}  // namespace

void add_entry(ui::Form& f) {
  for (const EntryField& entry : kFields) {
    ui::Control& field = ui::add_field(f, entry.field);
    if (entry.help)
      field.on_got_focus = [&f, help = entry.help] { f["BARRA"].set_text(help); };
  }
  ui::Control& operation = f["D1"];
  ui::name_combo(operation, {"Pagar", "Receber"});
  ui::date_field(f["D2"]);
  ui::date_field(f["D3"]);
  ui::money_field(f["D5"]);
  for (const char* name : {"D6", "D7", "D9"}) ui::name_combo(f[name], {});
  f["Text1"].on_lost_focus = [&f] { look_up_plan(f); };
  f.add("CN", ControlKind::CheckBox, "'A VISTA");
  ui::add_field(f, "NN", ControlKind::TextBox, "Controle");
  f["NN"].on_lost_focus = [&f] { recall(f); };
  f.add("NOME", ControlKind::Label);
  f.add("nc", ControlKind::Label).visible = false;
}

void load_lists(ui::Form& f) {
  f["D6"].items = records::list_items(kHistories);
  f["D7"].items = records::list_items(kTypes);
  f["D9"].items = records::customer_names();
}

void start_entry(ui::Runtime& rt, ui::Form& f) {
  f["D1"].set_list_index(1);  // "Receber"
  f["D2"].set_text(ui::today_text(rt));
  f["D3"].set_text(ui::today_text(rt));
  f["D5"].set_text("0,00");
}

void clear_entry(ui::Runtime& rt, ui::Form& f) {
  f["SL"].set_text("0");
  for (const char* name : {"nc", "Text1", "NN", "D4", "D6", "D7", "D9", "D10"}) f[name].set_text("");
  f["D2"].set_text(ui::today_text(rt));
  f["D3"].set_text(ui::today_text(rt));
  f["D5"].set_text("0,00");
  f["D11"].set_text("0,00");
  rt.set_focus(f["D1"]);
}

void record(ui::Runtime& rt, ui::Form& f) {
  if (rt.message("Confirma inclusão em:" + f["D1"].text(), ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
    return;
  if (!parse_date(f["D3"].text())) f["D3"].set_text(ui::today_text(rt));
  if (f["D1"].text().empty()) {
    rt.message("O campo [Operação], não pode ficar em branco.");
    return rt.set_focus(f["D1"]);
  }
  if (f["D6"].text().empty()) {
    rt.message("O campo [Histórico], não pode ficar em branco.");
    return rt.set_focus(f["D6"]);
  }
  bool included = false;
  ui::jump_style(rt, [&] {
    store::Database db = accounts();
    // A recalled account is never written a second time.
    if (!account_row(db, f["NN"].text()).eof())
      return (void)rt.message("Este lançamento já foi incluido, [Verifique].");
    rt.wait_pointer(true);
    write_new(db, f);
    if (parse_date(f["D3"].text()) == std::optional<Date>(rt.host().today().date_only())) {
      store::Recordset rs = account_row(db, f["NN"].text());
      if (!rs.eof()) add_to_day(f, rs);
    }
    note_inclusion();
    included = true;
  });
  rt.wait_pointer(false);  // also after "Operação não realizada."
  if (!included) return;
  rt.message("Inclusão realizada com sucesso.");
  clear_entry(rt, f);
  show_day(rt, f);
  f["CN"].set_checked(false);
}

void reissue_last(ui::Runtime& rt, ui::Form& f) {
  try {
    store::Database db = accounts();
    Value last = db.open_recordset("Select max(codigo) from cada")[0].value();
    if (last.is_null()) return;
    f["NN"].set_text(format(last, "000000"));
    store::Recordset rs = account_row(db, f["NN"].text());
    if (!rs.eof()) {
      f["Text1"].set_text(rs["GRUPO"].text());
      show_account(f, rs);
      f["D3"].set_text(date_text(date_add_days(rs["D3"].value().to_date(), 30)));
    }
    f["NN"].set_text(store::next_key(db, store::keys::kAccount));
  } catch (const Error&) {
    return (void)rt.message("Favor repetir a operação.");
  }
  rt.message("Conta relançada, digite o novo vencimento e inclua.");
  rt.set_focus(f["D3"]);
}

}  // namespace mz::finance::contas
