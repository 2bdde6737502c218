#include "finance/contas/closing_commissions.h"

#include <memory>

#include "core/format.h"
#include "core/regional.h"
#include "finance/contas/closing_sales.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"
#include "ui/report.h"

namespace mz::finance::contas {

using ui::ControlKind;

namespace {

const std::vector<std::string> kFormHeading = {"Forma de pagamento", "Total"};
const std::vector<std::string> kSellerHeading = {"Vendedor", "Total", "Comissão (%)", "Comissão"};

// The sales times the rate taken as money, then a hundredth of it.
std::string commission(Currency sales, const std::string& rate) {
  Currency product = sales * Currency::from_double(parse_number(rate).value_or(0));
  return format(Value(product.to_double() / 100), "###,##0.00");
}

}  // namespace

void add_commissions_tab(ui::Runtime& rt, ui::Form& f) {
  auto on_page = [](ui::Control& c) -> ui::Control& {
    c.page = kCommissionsPage;
    return c;
  };
  for (auto [name, caption] : {std::pair{"K1", "DATA INICIAL:"}, std::pair{"K2", "DATA FINAL:"}}) {
    ui::Control& date = on_page(ui::add_field(f, name, ControlKind::MaskedBox, caption));
    date.mask = "##/##/####";
    ui::date_field(date);
    on_page(f["L" + std::string(name)]);
  }
  on_page(f.add("Command1", ControlKind::Button, "VER")).on_click = [&rt, &f] { show_sales(rt, f); };
  on_page(f.add("Label20", ControlKind::Label, "VENDAS POR FORMA DE PGTO."));
  on_page(f.add("Grid2", ControlKind::Grid));
  on_page(f.add("Label21", ControlKind::Label, "VENDAS POR VENDEDOR"));
  on_page(f.add("Grid3", ControlKind::Grid));
}

void start_commissions(ui::Runtime& rt, ui::Form& f) {
  f["K1"].set_text(ui::today_text(rt));
  f["K2"].set_text(ui::today_text(rt));
  ui::show_rows(f["Grid2"], kFormHeading, {});
  ui::show_rows(f["Grid3"], kSellerHeading, {});
}

void show_sales(ui::Runtime& rt, ui::Form& f) {
  ui::show_rows(f["Grid2"], kFormHeading, {});
  ui::show_rows(f["Grid3"], kSellerHeading, {});
  rt.wait_pointer(true);
  const std::string from = store::data_sql(f["K1"].text(), rt.host().today());
  const std::string to = store::data_sql(f["K2"].text(), rt.host().today());

  std::vector<std::vector<std::string>> forms;
  Sales sales = sales_between(from, to);
  for (const std::string& name : option_names("\\A1.mdb"))
    forms.push_back({" >" + name, ui::money_text(Value(sum_of(sales.by_form, name)))});

  std::vector<std::vector<std::string>> rows;
  for (const Seller& s : sellers()) {
    Currency sold = sum_of(sales.by_seller, s.name);
    rows.push_back({" >" + s.name, ui::money_text(Value(sold)), s.rate, commission(sold, s.rate)});
  }
  ui::show_rows(f["Grid2"], kFormHeading, forms);
  ui::show_rows(f["Grid3"], kSellerHeading, rows);
  rt.wait_pointer(false);
}

void print_commissions(ui::Runtime& rt, ui::Form& f) {
  const ui::GridCells& g = f["Grid3"].grid;
  if (g.rows <= g.fixed_rows) return (void)rt.message("Primeiro faça a busca das comissões.");
  const std::string from = format(Value(f["K1"].text()), "00/00/0000");
  const std::string to = format(Value(f["K2"].text()), "00/00/0000");
  {
    store::Database db = store::Workspace::open_database("\\TMP2.MDB");
    store::Database::Transaction unit(db);
    db.execute("DELETE FROM TMP2;");
    for (int r = g.fixed_rows; r < g.rows; ++r) {
      std::string values = store::sql_quote(from) + ", " + store::sql_quote(to);
      for (int c = 0; c < 4; ++c) values += ", " + store::sql_quote(g.cell(r, c));
      db.execute("Insert into TMP2 (DI, DF, A1, A2, A3, A4) values (" + values + ")");
    }
    unit.commit();
  }
  ui::Report report(rt, print::Destination::Window);
  report.data_files = "\\TMP2.MDB";
  report.report_file_name = "\\TMP2.rpt";
  report.action(1);
}

}  // namespace mz::finance::contas
