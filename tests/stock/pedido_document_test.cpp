// An order is a document of the goods-out ledger that repeats its heading on
// every row; a movement keeps each line's label choice, an order none.
#include <gtest/gtest.h>

#include <string>

#include "stock/entrada/band.h"
#include "stock/entrada/document.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "support/scratch_folder.h"
#include "ui/form.h"
#include "ui/test_host.h"

namespace mz::stock {
namespace {

void lay_out(ui::Control& grid, int lines) {
  ui::GridCells& g = grid.grid;
  g.text.clear();
  g.rows = 0;
  g.cols = 0;
  g.resize(lines + 1, band::kColumns);
  for (int r = 1; r <= lines; ++r) {
    g.cell(r, band::kReferenceColumn) = std::to_string(1000 + r);
    g.cell(r, 2) = "3";
    g.cell(r, band::kQuantityColumn) = "3";
    g.cell(r, band::kCostColumn) = "10,00";
    g.cell(r, band::kLabelColumn) = "SIM";
  }
}

std::string column_per_row(const std::string& number, const char* column) {
  store::Database db = store::Workspace::open_database("\\SAI.MDB");
  std::string found;
  for (store::Recordset rs = db.open_recordset("select " + std::string(column) +
                                               " from ENTRA where CODIGO = " + store::sql_quote(number) + " order by REFERENCIA");
       !rs.eof(); rs.move_next())
    found += "[" + rs[0].text() + "]";
  return found;
}

// A scratch folder and a bare form holding the grid a document is recorded from.
struct Desk {
  mz::testing::ScratchFolder folder;
  ui::TestHost host;
  ui::Runtime rt{host};
  ui::Form f{rt, "T", "T"};
  ui::Control& grid = f.add("Grid1", ui::ControlKind::Grid);
};

struct Case {
  const char* what;
  bool with_labels;
  const char* labels;  // ET of the two rows
};

class OrderRows : public ::testing::TestWithParam<Case> {};

TEST_P(OrderRows, HeadingOnEveryRowAndLabelsOnlyForMovements) {
  Desk desk;
  ui::Control& grid = desk.grid;
  lay_out(grid, 2);
  document::Header h{"00000003", "MARIA", "22/11/2026", "P-1", "55,00", {{"B24", "ABERTO"}, {"A2", "M"}, {"DES", "5,00"}},
                     GetParam().with_labels};
  document::record(document::kExit, h, grid);
  EXPECT_EQ(column_per_row("00000003", "B24"), "[ABERTO][ABERTO]");
  EXPECT_EQ(column_per_row("00000003", "A2"), "[M][M]");
  EXPECT_EQ(column_per_row("00000003", "DES"), "[5,00][5,00]");
  EXPECT_EQ(column_per_row("00000003", "X1"), "[0][0]");  // an empty slot is stored as 0
  EXPECT_EQ(column_per_row("00000003", "ET"), GetParam().labels);
}

INSTANTIATE_TEST_SUITE_P(PedidoDocument, OrderRows,
                         ::testing::Values(Case{"movement", true, "[SIM][SIM]"}, Case{"order", false, "[][]"}),
                         [](const ::testing::TestParamInfo<Case>& info) { return std::string(info.param.what); });

// Recording an order again with fewer lines replaces it, and leaves the exit
// of another number alone.
TEST(PedidoDocument, ARecordingReplacesOnlyItsOwnNumber) {
  Desk desk;
  ui::Control& grid = desk.grid;
  lay_out(grid, 3);
  document::record(document::kExit, {"00000004", "SAÍDA", "22/11/2026", "", "", {}, true}, grid);
  document::record(document::kExit, {"00000005", "PEDIDO", "22/11/2026", "", "", {{"B24", "ABERTO"}}, false}, grid);
  lay_out(grid, 1);
  document::record(document::kExit, {"00000005", "PEDIDO", "22/11/2026", "", "", {{"B24", "FATURADO"}}, false}, grid);
  EXPECT_EQ(column_per_row("00000005", "B24"), "[FATURADO]");
  EXPECT_EQ(column_per_row("00000004", "NOME"), "[SAÍDA][SAÍDA][SAÍDA]");
}

}  // namespace
}  // namespace mz::stock
