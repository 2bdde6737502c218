// ENTRADA: stock movements. A document (its header, then its lines keyed in
// the band) goes to the goods-in or the goods-out ledger by REALIZAR.
#include <functional>
#include <memory>
#include <vector>

#include "core/format.h"
#include "stock/entrada/band.h"
#include "stock/entrada/document.h"
#include "stock/labels.h"
#include "stock/screens.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"
#include "ui/keys.h"
#include "ui/menu.h"
#include "ui/report.h"

namespace mz::stock {

using ui::ControlKind;

namespace {

std::vector<std::string> supplier_names() {
  std::vector<std::string> names;
  store::Database db = store::Workspace::open_database("\\FORNEX.Mdb");
  for (store::Recordset rs = db.open_recordset("SELECT* FROM CLI order BY a2"); !rs.eof(); rs.move_next())
    names.push_back(rs["a2"].text());
  return names;
}

void format_number(ui::Form& f) { f["EE1"].set_text(format(Value(f["EE1"].text()), "00000000")); }

// REALIZAR keeps one of its two options; anything else is an entry.
void settle_direction(ui::Form& f) { f["EE5"].set_text(document::direction(f["EE5"].text())); }

// Leaving REALIZAR: the number follows the series of the chosen file.
void renumber(ui::Form& f) {
  settle_direction(f);
  f["EE1"].set_text(document::next_number(f["EE5"].text()));
}

// F2: the document replaces whatever stood under its number; the screen
// stays filled for a correction.
void record(ui::Runtime& rt, ui::Form& f) {
  ui::resume_style([&] { format_number(f); });
  settle_direction(f);
  if (f["EE3"].text().empty()) return rt.set_focus(f["EE3"]);
  document::Header header{f["EE1"].text(), f["EE3"].text(), f["EE2"].text(), f["EE4"].text(), f["TT"].text()};
  ui::resume_style([&] { document::record(f["EE5"].text(), header, f["Grid1"]); });
  rt.message("Movimentação gravada com sucesso.");
}

// "< Busca": the document of the number on screen, from the file REALIZAR
// names; an unknown number leaves the header as it was.
void open_document(ui::Runtime& rt, ui::Form& f) {
  if (rt.message("Deseja consultar um novo movimento?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
    return;
  band::reset_totals(f);
  format_number(f);
  band::empty_grid(f);
  store::Database db = document::ledger(f["EE5"].text());
  store::Recordset rs = document::rows(db, f["EE1"].text());
  if (rs.eof()) return;
  f["EE3"].set_text(rs["NOME"].text());
  f["EE2"].set_text(store::data_tela(rs["DATA"]));
  f["EE4"].set_text(rs["TIPO"].text());
  f["TT"].set_text(rs["TOTAL"].text());
  for (; !rs.eof(); rs.move_next()) band::add_recorded_line(f, rs);
}

// F3: a new document.
void clear(ui::Runtime& rt, ui::Form& f) {
  for (const char* name : {"EE3", "EE4", "EE1"}) f[name].set_text("");
  band::clear_line(f);
  band::reset_totals(f);
  f["EE2"].set_text(ui::today_text(rt));
  f["EE5"].set_text(document::kEntry);
  band::empty_grid(f);
  rt.set_focus(f["EE5"]);
}

// F5: the rows of the number on screen go; the screen stays as it is.
void remove(ui::Runtime& rt, ui::Form& f) {
  if (rt.message("Deseja realmente apagar está entrada?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
    return;
  document::remove(f["EE5"].text(), f["EE1"].text());
}

// The summary of one supplier's documents in a ledger.
void summary(ui::Runtime& rt, ui::Form& f, ui::Report& report, const char* data_file, const char* templ) {
  if (f["EE3"].text().empty()) {
    rt.message("Selecione o fornecedor antes.");
    return rt.set_focus(f["EE3"]);
  }
  report.data_files = data_file;
  report.selection_formula = "{entra.nome} = '" + f["EE3"].text() + "'";
  report.report_file_name = templ;
  report.action(1);
}

void add_header(ui::Form& f) {
  ui::Control& ee5 = ui::add_field(f, "EE5", ControlKind::ComboBox, "REALIZAR");
  ee5.items = {document::kEntry, document::kExit};
  ee5.on_lost_focus = [&f] { renumber(f); };
  ui::add_field(f, "EE1", ControlKind::TextBox, "CONTROLE");
  ui::date_field(ui::add_field(f, "EE2", ControlKind::MaskedBox, "DATA:"));
  ui::add_field(f, "EE3", ControlKind::ComboBox, "FORNECEDOR OU TIPO");
  ui::add_field(f, "EE4", ControlKind::TextBox, "NR.DOC.");
}

void add_totals(ui::Form& f) {
  ui::money_field(ui::add_field(f, "TT", ControlKind::TextBox, "TL.ENTRADA"));
  ui::add_field(f, "TL", ControlKind::Label, "TL.PRODUTOS");
  ui::add_field(f, "nr", ControlKind::Label, "TL.PEÇAS");
}

// The F-key menu: each item answers its key from any field.
void add_menu(ui::Runtime& rt, ui::Form& f, const std::shared_ptr<ui::Report>& report) {
  ui::add_menu_items(f, {
      {"xzc", "F2 Grava", 2, [&rt, &f] { record(rt, f); }},
      {"cxv", "F3 Limpa", 3, [&rt, &f] { clear(rt, f); }},
      {"vcb", "F4 Etiquetas", 4, [&rt, &f] { generate_labels(rt, "\\ENTRA.MDB", f["EE1"].text(), f["Grid1"]); }},
      {"gfh", "F5 Exclui", 5, [&rt, &f] { remove(rt, f); }},
      {"ytu", "F6 Compras", 6, [&rt] { rt.show("PEDIDO"); }},
      {"erte", "F7 Acertos", 7, [&rt] { rt.show("deve"); }},
      {"dfgf", "F8 Troca", 8, [&rt] { rt.show("troca"); }},
      {"uyiyui", "F9 Volta", 9, [&rt] { rt.close("ENTRADA"); }},
      {"sdfsdfsdf", "Relatório de entrada(s) resumido por fornecedor", 0,
       [&rt, &f, report] { summary(rt, f, *report, "\\entra.mdb", "\\entra.rpt"); }},
      {"ccvdfsdf", "Relatório de saída(s) resumido por fornecedor", 0,
       [&rt, &f, report] { summary(rt, f, *report, "\\sai.mdb", "\\sai.rpt"); }},
      {"sdsds", "Balanço", 0, [&rt] { rt.show("balanco"); }},
  });
}

}  // namespace

std::unique_ptr<ui::Form> make_entrada(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "ENTRADA", "ESTOQUE  ENTRADA/SAÍDA");
  ui::Form& f = *form;
  auto report = std::make_shared<ui::Report>(rt, print::Destination::Window);
  add_header(f);
  band::add_band(rt, f);
  add_totals(f);
  f.add("Command8", ControlKind::Button, "< Busca").on_click = [&rt, &f] { open_document(rt, f); };
  add_menu(rt, f, report);

  // F1 launches the line from any field; the other keys reach their menu items.
  f.key_preview = true;
  f.on_key_down = [&rt, &f](int& key, int) {
    if (key != ui::key::kF1) return;
    key = 0;
    band::launch_line(rt, f);
  };
  f.on_load = [&rt, &f] {
    rt.centre(f);
    band::load_band(f);
    f["EE5"].set_text(document::kEntry);
    ui::name_combo(f["EE3"], supplier_names());
    f["EE2"].set_text(ui::today_text(rt));
  };
  return form;
}

}  // namespace mz::stock
