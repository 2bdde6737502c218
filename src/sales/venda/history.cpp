#include "sales/venda/history.h"

#include <vector>

#include "sales/venda/grids.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::sales::venda {

namespace {

const std::vector<std::string> kHistoryHeading = {"NR. VENDA", "VALOR", "DATA", "PRODUTO", "PAGAMENTO"};

// Command20: the customer's lines, the latest first.
void show_history(ui::Runtime& rt, ui::Form& f) {
  const std::string customer = f["c1"].text();
  if (customer.empty()) {
    rt.message("Selecione o nome do cliente na aba FECHAMENTO,antes de buscar.");
    return;
  }
  std::vector<std::vector<std::string>> rows;
  store::Database db = store::Workspace::open_database("\\VENDA.Mdb");
  for (store::Recordset rs =
           db.open_recordset("SELECT* FROM VENDA WHERE NOME = " + store::sql_quote(customer) + " order by data desc");
       !rs.eof(); rs.move_next())
    rows.push_back({rs["CODIGO"].text(), ui::money_text(rs["VALOR"]), store::data_tela(rs["DATA"]), rs["V1"].text(),
                    rs["PAGAMENTO"].text()});
  ui::show_rows(f["Grid11"], kHistoryHeading, rows);
}

}  // namespace

void add_history_tab(ui::Runtime& rt, ui::Form& f) {
  ui::Control& button = f.add("Command20", ui::ControlKind::Button, "01- Busca histórico do cliente");
  button.page = kHistoryPage;
  button.on_click = [&rt, &f] { show_history(rt, f); };
  ui::Control& grid = f.add("Grid11", ui::ControlKind::Grid);
  grid.page = kHistoryPage;
  ui::show_rows(grid, kHistoryHeading, {});
}

void load_history(ui::Form& f) { clear_rows(f["Grid11"]); }

}  // namespace mz::sales::venda
