#include "ui/bound_grid.h"

#include <gtest/gtest.h>

#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::ui {
namespace {

TEST(UiBoundGrid, ShowsTheQuerysRowsUnderTheColumnNames) {
  testing::ScratchFolder folder;
  store::Database db = store::Workspace::open_database("TELEFONE.MDB");
  TestHost host;
  Runtime rt(host);
  Form form(rt, "TELEFONE", "Agenda");
  Control& grid = form.add("DBGrid1", ControlKind::BoundGrid);
  grid.database_name = "\\TELEFONE.MDB";
  grid.record_source = "SELECT ID, A1 FROM TELEFONE ORDER BY A1";
  refresh_bound_grid(grid);
  EXPECT_EQ(grid.grid.rows, 1) << "the heading alone";
  EXPECT_EQ(grid.grid.cell(0, 1), "A1");
  db.execute("Insert into TELEFONE (ID, A1) values ('000002', 'Zélia')");
  db.execute("Insert into TELEFONE (ID, A1) values ('000001', 'álvaro')");
  refresh_bound_grid(grid);
  ASSERT_EQ(grid.grid.rows, 3);
  EXPECT_EQ(grid.grid.cell(1, 0), "000001");
  EXPECT_EQ(grid.grid.cell(2, 1), "Zélia");
  EXPECT_EQ(grid.grid.row, 1);
}

}  // namespace
}  // namespace mz::ui
