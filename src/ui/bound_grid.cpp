#include "ui/bound_grid.h"

#include "store/database.h"

namespace mz::ui {

void refresh_bound_grid(Control& grid) {
  store::Recordset rs = store::Workspace::open_trusted(grid.database_name).open_recordset(grid.record_source);
  const int cols = static_cast<int>(rs.field_count());
  std::vector<std::string> cells;
  for (int c = 0; c < cols; ++c) cells.push_back(rs[static_cast<size_t>(c)].name());
  for (; !rs.eof(); rs.move_next())
    for (int c = 0; c < cols; ++c) cells.push_back(rs[static_cast<size_t>(c)].text());
  GridCells& g = grid.grid;
  g.rows = cols ? static_cast<int>(cells.size()) / cols : 1;
  g.cols = cols;
  g.fixed_rows = 1;
  g.fixed_cols = 0;
  g.text = std::move(cells);
  g.colour.assign(g.text.size(), kWhite);
  g.row = g.rows > 1 ? 1 : 0;
  g.col = 0;
}

}  // namespace mz::ui
