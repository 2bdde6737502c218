// ETI: prints the labels the movement screens left in BARRA, on the sheet
// the user picks, with the margins of the last print.
#include <cmath>
#include <memory>

#include "core/regional.h"
#include "stock/eti/sheets.h"
#include "stock/screens.h"
#include "store/database.h"
#include "ui/fields.h"
#include "ui/report.h"

namespace mz::stock {

namespace {

using ui::ControlKind;

constexpr const char* kMargins[] = {"M1", "M2", "M3", "M4"};

store::Recordset margins_row(store::Database& db) { return db.open_recordset("Select * From MARGEM order by M1"); }

void load_margins(ui::Form& f) {
  store::Database db = store::Workspace::open_database("\\MARGEM.Mdb");
  store::Recordset rs = margins_row(db);
  if (rs.eof()) return;
  for (const char* m : kMargins) f[m].set_text(rs[m].text());
}

void store_margins(const ui::Form& f) {
  store::Database db = store::Workspace::open_database("\\MARGEM.Mdb");
  store::Recordset rs = margins_row(db);
  if (rs.eof()) return;
  rs.edit();
  for (const char* m : kMargins) rs[m] = f[m].text();
  rs.update();
}

std::string shop_name() {
  store::Database db = store::Workspace::open_database("\\EMPE.Mdb");
  store::Recordset rs = db.open_recordset("SELECT* FROM EMPE ORDER BY A1");
  return rs.eof() ? "" : rs["A1"].text();
}

// A margin as the report engine takes it: a whole number, rounded as the
// old runtime rounded (halves to even); what is no number counts 0.
int whole(const std::string& text) { return static_cast<int>(std::nearbyint(parse_number(text).value_or(0))); }

print::Margins kept_margins(const ui::Form& f) {
  return {whole(f["M1"].text()), whole(f["M2"].text()), whole(f["M3"].text()), whole(f["M4"].text())};
}

}  // namespace

std::unique_ptr<ui::Form> make_eti(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "ETI", "Impressão");
  ui::Form& f = *form;
  f.add("Etiqueta", ControlKind::Label, "Etiqueta").bold = true;
  ui::Control& options = f.add("Combo1", ControlKind::ComboBox);
  for (const eti::Sheet& sheet : eti::sheets()) options.items.push_back(sheet.option);
  ui::add_field(f, "TT", ControlKind::TextBox, "Nome para Identificação de Etiqueta:");
  ui::add_field(f, "M1", ControlKind::TextBox, "TOPO");
  ui::add_field(f, "M2", ControlKind::TextBox, "ESQUERDA");
  ui::add_field(f, "M3", ControlKind::TextBox, "DIREITA");
  ui::add_field(f, "M4", ControlKind::TextBox, "BASE");
  f.add("SemValor", ControlKind::CheckBox, "sem valor");
  auto report = std::make_shared<ui::Report>(rt, print::Destination::Window);

  f.add("Imprime", ControlKind::Button, "&Imprime").on_click = [&f, report] {
    store_margins(f);
    const eti::Sheet* sheet = eti::find_sheet(f["Combo1"].text());
    if (!sheet) return;
    eti::rewrite_labels(sheet->rewrite, f["TT"].text());
    report->data_files = "\\BARRA.MDB";
    report->report_file_name = std::string("\\") + (f["SemValor"].checked() ? sheet->report_no_price : sheet->report);
    report->margins.reset();
    if (sheet->margins) report->margins = kept_margins(f);
    report->action(1);
  };
  f.add("Seleciona", ControlKind::Button, "&Seleciona").on_click = [&rt] { ui::choose_printer(rt); };
  f.add("Volta", ControlKind::Button, "&Volta").on_click = [&rt] { rt.close("ETI"); };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["TT"].set_text(shop_name());
    load_margins(f);
  };
  return form;
}

}  // namespace mz::stock
