// Impe: the customer lists, the record card and the mailing labels, for
// everyone, for the classification or the customer shown on Cadastro.
#include <memory>

#include "maintenance/customer_lists.h"
#include "maintenance/hourglass.h"
#include "maintenance/screens.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::maintenance {

using ui::ControlKind;

namespace {

enum class Needs { Nothing, Customer, Classification };
enum class Rows { None, All, Customer, Classification, Sender, OpensNas };

struct Option {
  const char* text;
  Needs needs;
  const char* missing;  // the message when what it needs is not chosen on Cadastro
  const char* report;
  Rows rows;
  bool labels;
};

constexpr const char* kNeedsClassification =
    "Para imprimir por Classificação, selecione a mesma no cadastro, antes da impressão.";

const Option kOptions[] = {
    {"FICHA CADASTRAL INDIVIDUAL.", Needs::Customer,
     "Para imprimir a Ficha Cadastral, selecione o cliente no cadastro, antes da impressão.", "\\INDI.rpt", Rows::None,
     false},
    {"LISTA RESUMIDA GERAL.", Needs::Nothing, "", "\\R1.rpt", Rows::All, false},
    {"LISTA RESUMIDA POR CLASSIFICAÇÃO.", Needs::Classification, kNeedsClassification, "\\R2.rpt",
     Rows::Classification, false},
    {"LISTA DE E-MAIL POR CLASSIFICAÇÃO.", Needs::Classification, kNeedsClassification, "\\EMA.rpt",
     Rows::Classification, false},
    {"ENDEREÇO INDIVIDUAL (P/CORRESPONDÊNCIA).", Needs::Customer,
     "Para imprimir Endereço Individual, selecione o cliente no cadastro, antes da impressão.", "\\R3.rpt",
     Rows::Customer, true},
    {"ENDEREÇO(S) POR CLASSIFICAÇÃO P/ MALA DIRETA.", Needs::Classification,
     "Para imprimir Endereço(s) por Classificação, selecione a Classificação no cadastro, antes da impressão.",
     "\\R4.rpt", Rows::Classification, true},
    {"ENDEREÇO(S) POR MÊS DE NASCIMENTO P/ MALA DIRETA.", Needs::Nothing, "", "", Rows::OpensNas, false},
    {"ETIQUETAS P/ REMETENTE.", Needs::Nothing, "", "\\R4.rpt", Rows::Sender, true},
};

// The recommended sheet holds 30 labels.
constexpr int kSenderLabels = 30;

const Option* chosen(const ui::Form& f) {
  for (const Option& o : kOptions)
    if (f["Combo1"].text() == o.text) return &o;
  return nullptr;
}

std::vector<RelaRow> customers(const std::string& where) {
  std::vector<RelaRow> rows;
  store::Database db = store::Workspace::open_database("\\Cada.Mdb");
  for (store::Recordset rs = db.open_recordset("SELECT* FROM CADA " + where + "order by CODIGO"); !rs.eof();
       rs.move_next())
    rows.push_back(customer_row(rs));
  return rows;
}

std::vector<RelaRow> sender_labels(const ui::Form& f) {
  RelaRow shop;
  shop.nome = f["A1"].text();
  shop.fone = f["A2"].text();
  shop.rua = f["A3"].text();
  shop.cidade = f["A4"].text();
  return std::vector<RelaRow>(kSenderLabels, shop);
}

void imprime(ui::Runtime& rt, ui::Form& f, ReportPair& reports) {
  const Option* option = chosen(f);
  if (!option) return (void)rt.message("Selecione a opção, antes de imprimir.");
  if (option->rows == Rows::OpensNas) return (void)rt.show("NAS");
  // What the customer card shows is what is selected.
  ui::Form& card = rt.screen("Cadastro");
  const std::string code = card["NN"].text(), classification = card["A26"].text();
  if ((option->needs == Needs::Customer && code.empty()) ||
      (option->needs == Needs::Classification && classification.empty()))
    return (void)rt.message(option->missing);
  if (option->labels)
    rt.message(option->rows == Rows::Sender ? kSenderLabelsNotice : kLabelsNotice, ui::Buttons::Ok,
               ui::Icon::Information);
  {
    Hourglass wait(rt);
    switch (option->rows) {
      case Rows::All: fill_rela(customers("")); break;
      case Rows::Customer: fill_rela(customers("where CODIGO = " + store::sql_quote(code) + " ")); break;
      case Rows::Classification: fill_rela(customers("where A26 = " + store::sql_quote(classification) + " ")); break;
      case Rows::Sender: fill_rela(sender_labels(f)); break;
      case Rows::None:
      case Rows::OpensNas: fill_rela({}); break;
    }
  }
  if (option->rows == Rows::None)
    ui::preview_or_print(rt, reports, option->report, "\\Cada.mdb", "{CADA.CODIGO} = '" + code + "'");
  else
    ui::preview_or_print(rt, reports, option->report, "\\Rela.MDB");
}

void load_shop(ui::Form& f) {
  store::Database db = store::Workspace::open_database("\\EMPE.Mdb");
  store::Recordset rs = db.open_recordset("SELECT* FROM EMPE ORDER BY A1");
  for (const char* name : {"A1", "A2", "A3", "A4", "A5"}) f[name].set_text(rs.eof() ? "" : rs[name].text());
}

}  // namespace

std::unique_ptr<ui::Form> make_impe(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "Impe", "Impressões");
  ui::Form& f = *form;
  ui::Control& options = ui::add_field(f, "Combo1", ControlKind::ComboBox, "Imprimir:");
  options.enter_moves_on = true;
  for (const Option& o : kOptions) options.items.push_back(o.text);
  auto reports = std::make_shared<ReportPair>(rt);
  f.add("SSCommand7", ControlKind::Button, "&Imprime").on_click = [&rt, &f, reports] { imprime(rt, f, *reports); };
  f.add("SSCommand1", ControlKind::Button, "&Seleciona").on_click = [&rt] { ui::choose_printer(rt); };
  f.add("SSCommand5", ControlKind::Button, "&Volta").on_click = [&rt] { rt.close("Impe"); };
  for (const char* name : {"A1", "A2", "A3", "A4", "A5"}) f.add(name, ControlKind::TextBox).visible = false;
  f.on_load = [&rt, &f] {
    rt.centre(f);
    load_shop(f);
  };
  return form;
}

}  // namespace mz::maintenance
