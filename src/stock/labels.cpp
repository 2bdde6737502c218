// F4 on the movement screens: one BARRA row a piece of every size of every
// line marked for labels, numbered from 1, then the label screen.
#include "stock/labels.h"

#include <array>
#include <optional>
#include <vector>

#include "core/error.h"
#include "core/regional.h"
#include "records/grade.h"
#include "stock/balance.h"
#include "stock/entrada/band.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::stock {

namespace {

using band::kLabelColumn;
using band::kReferenceColumn;

bool marked(const ui::Control& grid, int row) {
  return grid.grid.cols > kLabelColumn && grid.grid.cell(row, kLabelColumn) == "SIM";
}

struct Product {
  bool found = false;
  std::string price, description;  // E11 and E2
};

Product product(store::Database& refe, const std::string& reference) {
  store::Recordset rs = refe.open_recordset("SELECT* FROM GRUPO where GR = " + store::sql_quote(reference));
  if (rs.eof()) return {};
  return {true, rs["E11"].text(), rs["E2"].text()};
}

struct LabelRow {
  int conta;
  std::string code, tipo;
  const Product* product;
};

// The rows in the order the grid gives them: line by line, slot by slot, a
// row a piece. An empty cell is not "0" but counts no piece.
std::vector<LabelRow> label_rows(const ui::Control& grid, const std::vector<Product>& products,
                                 const std::array<std::string, kSlots>& captions) {
  std::vector<LabelRow> rows;
  int conta = 1;
  for (int r = 1; r < grid.grid.rows; ++r) {
    if (!marked(grid, r)) continue;
    const std::string& reference = grid.grid.cell(r, kReferenceColumn);
    for (int n = 1; n <= kSlots; ++n) {
      const std::string& cell = grid.grid.cell(r, n);
      if (cell == "0") continue;
      double pieces = parse_number(cell).value_or(0);
      std::string slot = (n < 10 ? "0" : "") + std::to_string(n);
      for (int item = 1; item < pieces + 1; ++item)
        rows.push_back({conta++, "*" + reference + slot + "*", reference + "." + slot + "." + captions[n - 1],
                        &products[static_cast<size_t>(r)]});
    }
  }
  return rows;
}

// Like the movement screen's other writes, a statement that fails is passed
// over and the next one runs.
void fill_barra(const std::vector<LabelRow>& rows) {
  store::Database barra = store::Workspace::open_database("\\BARRA.Mdb");
  store::Database::Transaction unit(barra);
  ui::resume_style([&] { barra.execute("delete From BARRA;"); });
  store::Recordset rs = barra.open_recordset("Select * From BARRA order by CONTA");
  for (const LabelRow& row : rows) {
    auto put = [&](const char* column, const std::string& value) { ui::resume_style([&] { rs[column] = Value(value); }); };
    ui::resume_style([&] { rs.add_new(); });
    ui::resume_style([&] { rs["CONTA"] = Value(static_cast<double>(row.conta)); });
    put("CODIGO", row.code);
    put("TIPO", row.tipo);
    if (row.product->found) {
      put("VALOR", row.product->price);
      put("NOME", row.product->description);
    }
    try {
      rs.update();
    } catch (const Error&) {
      rs.cancel_update();  // a row that cannot be written is passed over
    }
  }
  unit.commit();
}

}  // namespace

void generate_labels(ui::Runtime& rt, std::string_view ledger_file, const std::string& number, const ui::Control& grid) {
  rt.message("Lembre-se de gravar a entrada/saída antes da emissão das etiquetas.");
  store::Database ledger = store::Workspace::open_database(ledger_file);
  if (ledger.open_recordset("SELECT* FROM ENTRA where CODIGO = " + store::sql_quote(number)).eof())
    return (void)rt.message("Antes da impressão, grave a movimentação.");

  rt.wait_pointer(true);
  std::array<std::string, kSlots> captions = records::grade_load().value_or(std::array<std::string, kSlots>{});
  // Each line's product is read once, before BARRA is held.
  std::vector<Product> products(static_cast<size_t>(grid.grid.rows));
  store::Database refe = store::Workspace::open_database("\\REFE.Mdb");
  for (int r = 1; r < grid.grid.rows; ++r)
    if (marked(grid, r))
      products[static_cast<size_t>(r)] = product(refe, grid.grid.cell(r, kReferenceColumn));
  // A BARRA that another station holds is passed over like any failing
  // statement: ETI opens on the rows the last generation left.
  ui::resume_style([&] { fill_barra(label_rows(grid, products, captions)); });
  rt.wait_pointer(false);
  rt.show("ETI");
}

}  // namespace mz::stock
