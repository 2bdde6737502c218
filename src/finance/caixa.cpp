// CAIXA: the cash book by hand: entry of a line, the day list with its
// three figures and the general balance, the printed day list, and the
// drawer lines.
#include <memory>

#include "core/format.h"
#include "finance/caixa/cash_book.h"
#include "finance/caixa/day_print.h"
#include "finance/caixa/day_view.h"
#include "finance/caixa/owner.h"
#include "finance/screens.h"
#include "records/option_list.h"
#include "store/sql_text.h"
#include "ui/fields.h"
#include "ui/report.h"

namespace mz::finance {

using ui::ControlKind;

namespace {

struct Field {
  ui::FieldEntry entry;
  const char* help;
};

// In the order of entry, each with the help the bar shows while it has the focus.
const Field kFields[] = {
    {{"A1", "DATA:", ControlKind::MaskedBox}, " INICIE DIGITANDO A DATA DO LANÇAMENTO E TECLE [TAB]."},
    {{"A2", "OPERAÇÃO:", ControlKind::ComboBox}, " SELECIONE A OPÇÃO [DÉBITO] OU [CRÉDITO] E TECLE [ENTER]."},
    {{"A3", "Nº DOC.:", ControlKind::TextBox}, " DIGITE O Nº DO DOCUMENTO E TECLE [ENTER]."},
    {{"A4", "TIPO:", ControlKind::ComboBox}, " SELECIONE O TIPO DA OPERAÇÃO E TECLE [ENTER]."},
    {{"A5", "VALOR:", ControlKind::TextBox}, " DIGITE O VALOR DA OPERAÇÃO E TECLE [ENTER]."},
    {{"A6", "DESCRITIVO:", ControlKind::ComboBox}, " DIGITE O HISTÓRICO DO LANÇAMENTO E TECLE [ENTER]."},
    {{"Combo1", "GRUPO:", ControlKind::ComboBox}, " SELECIONE O PLANO DE CONTAS E TECLE [ENTER]."},
};

constexpr records::OptionList kTypes{"\\C7.Mdb", "A1", "A1", ""};

// The shop's name as the main screen in use shows it.
std::string main_name(ui::Runtime& rt) {
  if (rt.is_shown("INICIO")) return rt.screen("INICIO")["NOME"].text();
  if (rt.is_shown("ini2")) return rt.screen("ini2")["nome"].text();
  return "";
}

void load(ui::Runtime& rt, ui::Form& f) {
  f["NOME"].set_text(main_name(rt));
  f["A4"].items = records::list_items(kTypes);
  f["A1"].set_text(ui::today_text(rt));
  cash::carrega(rt, f);
}

void grava(ui::Runtime& rt, ui::Form& f) {
  if (f["A6"].text().empty()) {
    rt.message("O campo [Histórico], não pode ficar em branco.");
    return rt.set_focus(f["A2"]);
  }
  if (f["A2"].text().empty()) {
    rt.message("O campo [Operação], não pode ficar em branco.");
    return rt.set_focus(f["A2"]);
  }
  // A selected line is never rewritten: the key is always a new one.
  f["NN"].set_text(cash::write_line({f["A1"].text(), f["A2"].text(), f["A3"].text(), f["A4"].text(), f["A5"].text(),
                                     f["A6"].text(), f["Combo1"].text(), f["NOME"].text()}));
  for (const char* name : {"Combo1", "A3", "A4", "A6"}) f[name].set_text("");
  f["A5"].set_text("0,00");
  rt.set_focus(f["A2"]);
  rt.wait_pointer(true);
  f["A1"].set_text(ui::today_text(rt));
  cash::carrega(rt, f);
  rt.wait_pointer(false);
}

// A double click takes the line into the fields and off the list; the book
// is not touched.
void select_line(ui::Runtime& rt, ui::Form& f) {
  ui::GridCells& g = f["Grid1"].grid;
  if (g.row < g.fixed_rows || g.row >= g.rows) return;
  const char* targets[] = {"A1", "A2", "A3", "A4", "A5", "A6", "NN", "Combo1"};
  for (int c = 0; c < g.cols && c < 8; ++c) f[targets[c]].set_text(g.cell(g.row, c));
  rt.message("Conta selecionada.");
  auto first = g.text.begin() + g.row * g.cols;
  g.text.erase(first, first + g.cols);
  auto first_colour = g.colour.begin() + g.row * g.cols;
  g.colour.erase(first_colour, first_colour + g.cols);
  --g.rows;
  if (g.row >= g.rows) g.row = g.rows - 1;
}

void apaga(ui::Runtime& rt, ui::Form& f) {
  if (rt.message("Deseja realmente apagar este lançamento?", ui::Buttons::YesNo, ui::Icon::Question) !=
      ui::Answer::Yes)
    return;
  ui::jump_style(rt, [&rt, &f] {
    store::Database db = cash::open_book();
    store::Recordset rs = db.open_recordset("SELECT* FROM CADA where CODIGO = " + store::sql_quote(f["NN"].text()));
    if (rs.eof()) return;
    rs.delete_current();
    rs.close();
    rt.message("Exclusão realizada com sucesso.");
    load(rt, f);
  });
}

// Another day's lines, or every line: A9 keeps today's balance all the same.
void show_other(ui::Runtime& rt, ui::Form& f, const std::vector<cash::Line>& lines, bool whole_book) {
  f["A9"].set_text(whole_book ? cash::figure_text(cash::single_precision_balance(lines))
                              : cash::figure_text(cash::single_precision_balance(cash::lines_on(rt.host().today()))));
  cash::show_lines(f, lines);
}

void por_data(ui::Runtime& rt, ui::Form& f) {
  std::optional<Date> day = cash::typed_day(f["A1"].text());
  show_other(rt, f, day ? cash::lines_on(*day) : std::vector<cash::Line>{}, false);
}

void erase_all(ui::Runtime& rt, ui::Form& f) {
  cash::open_book().execute("Delete from Cada;");
  for (const char* name : {"A3", "A4", "A6"}) f[name].set_text("");
  rt.set_focus(f["A1"]);
  load(rt, f);  // an empty book: today's date, no line, every figure "0,00"
}

}  // namespace

std::unique_ptr<ui::Form> make_caixa(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "CAIXA", "Caixa");
  ui::Form& f = *form;
  for (const Field& field : kFields) {
    ui::Control& c = ui::add_field(f, field.entry);
    c.enter_moves_on = true;
    c.on_got_focus = [&f, help = field.help] { f["BARRA"].set_text(help); };
  }
  ui::date_field(f["A1"]);
  f["A2"].items = {cash::kDebit, cash::kCredit};
  f["A2"].set_list_index(0);
  ui::name_combo(f["A4"], {});
  ui::money_field(f["A5"]);
  ui::name_combo(f["A6"], {});
  ui::name_combo(f["Combo1"], {});
  f.add("NN", ControlKind::TextBox).visible = false;
  f.add("NOME", ControlKind::Label);
  ui::add_field(f, "A7", ControlKind::Label, "DÉBITOS:");
  ui::add_field(f, "A8", ControlKind::Label, "CRÉDITOS:");
  ui::add_field(f, "A9", ControlKind::Label, "SALDO DO CAIXA:");
  ui::add_field(f, "AX", ControlKind::Label, "SALDO GERAL:");
  f.add("Label1", ControlKind::Label, "MOVIMENTAÇÃO DO DIA").bold = true;
  ui::Control& grid = f.add("Grid1", ControlKind::Grid);
  grid.on_dbl_click = [&rt, &f] { select_line(rt, f); };
  f.add("Label2", ControlKind::Label, "PARA SELECIONAR UM LANÇAMENTO, DE UM DUPLO CLIQUE SOBRE O MESMO.");
  f.add("BARRA", ControlKind::Label);

  ui::add_action(f, "Command16", "gf", "Grava", [&rt, &f] { grava(rt, f); });
  ui::add_action(f, "Command11", "fd", "Apaga", [&rt, &f] { apaga(rt, f); });
  ui::add_action(f, "Command23", "fdf", "Pesquisa", [&rt] { rt.show("BUSCAIXA"); });
  f.add("Command1", ControlKind::Button, "Abre Caixa").on_click = [&rt] { rt.show("ABRECX"); };
  f.add("Command2", ControlKind::Button, "Fecha Caixa").on_click = [&rt, &f] {
    rt.screen("FECHACX")["A1"].set_text(f["A9"].text());
    rt.show("FECHACX");
  };
  f.add("Command3", ControlKind::Button, "> POR DATA").on_click = [&rt, &f] { por_data(rt, f); };
  f.add("Command4", ControlKind::Button, "> VER TODOS").on_click = [&rt, &f] {
    show_other(rt, f, cash::all_lines(), true);
  };
  auto report = std::make_shared<ui::Report>(rt, print::Destination::Window);
  f.add("Command6", ControlKind::Button, "Imprime").on_click = [&rt, &f, report] {
    cash::fill_day_table(rt, {f["A1"].text(), f["A9"].text(), main_name(rt)});
    report->data_files = "\\Rela2cx.MDB";
    report->report_file_name = "\\cximpe.rpt";
    report->action(1);
  };
  ui::add_action(f, "Command7", "as", "Volta", [&rt] { rt.close("CAIXA"); });
  f.add("mnuApagaTudo", ControlKind::MenuItem, "Apaga todos os lançamentos").on_click = [&rt, &f] {
    cash::owner_erase(rt, "Está operação apaga todos os lançamentos do caixa, confirma?", [&rt, &f] { erase_all(rt, f); });
  };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    load(rt, f);
  };
  return form;
}

}  // namespace mz::finance
