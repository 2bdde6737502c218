// NAS: labels and a birthday letter for the customers and dependants born
// in the month typed, compared as two digits.
#include <memory>
#include <optional>

#include "core/format.h"
#include "core/regional.h"
#include "maintenance/customer_lists.h"
#include "maintenance/hourglass.h"
#include "maintenance/screens.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::maintenance {

using ui::ControlKind;

namespace {

// The month of a birth date as two digits; "" when there is no date.
std::string birth_month(const std::string& date) {
  std::optional<Date> d = parse_date(date);
  return d ? format(Value(static_cast<double>(d->month())), "00") : "";
}

// Customers first, in code order; then dependants in the order of their
// birth date, at the address of the customer they belong to.
std::vector<RelaRow> born_in(const std::string& month, bool keep_date) {
  std::vector<RelaRow> rows;
  store::Database cada = store::Workspace::open_database("\\CADA.MDB");
  for (store::Recordset rs = cada.open_recordset("SELECT* FROM CADA order by CODIGO"); !rs.eof(); rs.move_next()) {
    std::string born = rs["A34"].text();
    if (birth_month(born) != month) continue;
    RelaRow row = customer_row(rs);
    if (keep_date) row.data = born;
    rows.push_back(row);
  }
  store::Database depe = store::Workspace::open_database("\\DEPE.Mdb");
  for (store::Recordset rs = depe.open_recordset("SELECT* FROM DEPE order by DATA"); !rs.eof(); rs.move_next()) {
    std::string born = rs["DATA"].text();
    if (birth_month(born) != month) continue;
    store::Recordset holder = cada.open_recordset("SELECT* FROM CADA where A1 = " + store::sql_quote(rs["A1"].text()));
    if (holder.eof()) continue;
    RelaRow row = customer_row(holder);
    row.nome = rs["NOME"].text();
    if (keep_date) row.data = born;
    rows.push_back(row);
  }
  return rows;
}

void imprime(ui::Runtime& rt, ui::Form& f, ReportPair& reports, bool letter) {
  rt.message(kLabelsNotice, ui::Buttons::Ok, ui::Icon::Information);
  {
    Hourglass wait(rt);
    fill_rela(born_in(f["MES"].text(), letter));
  }
  ui::preview_or_print(rt, reports, letter ? "\\R4x.rpt" : "\\R4.rpt", "\\Rela.MDB");
}

}  // namespace

std::unique_ptr<ui::Form> make_nas(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "NAS", "Etiquetas p/ mês de nascimento");
  ui::Form& f = *form;
  ui::Control& month = ui::add_field(f, "MES", ControlKind::TextBox, "DIGITE O MÊS:");
  ui::number_field(month);
  month.enter_moves_on = true;
  auto reports = std::make_shared<ReportPair>(rt);
  f.add("SSCommand7", ControlKind::Button, "&Imprime").on_click = [&rt, &f, reports] {
    imprime(rt, f, *reports, false);
  };
  f.add("Command1", ControlKind::Button, "&Carta").on_click = [&rt, &f, reports] { imprime(rt, f, *reports, true); };
  f.add("SSCommand1", ControlKind::Button, "&Seleciona").on_click = [&rt] { ui::choose_printer(rt); };
  f.add("SSCommand5", ControlKind::Button, "&Volta").on_click = [&rt] { rt.close("NAS"); };
  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["MES"].set_text("01");
  };
  return form;
}

}  // namespace mz::maintenance
