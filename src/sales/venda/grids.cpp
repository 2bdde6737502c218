#include "sales/venda/grids.h"

namespace mz::sales::venda {

namespace {
constexpr uint32_t kBand = 0xFFF0E0;  // a pale blue, blue-green-red
}

void clear_rows(ui::Control& grid) {
  grid.grid.resize(1, grid.grid.cols);
  grid.grid.row = 0;
}

void append_row(ui::Control& grid, const std::vector<std::string>& cells) {
  ui::GridCells& g = grid.grid;
  g.resize(g.rows + 1, g.cols);
  for (int c = 0; c < g.cols && c < static_cast<int>(cells.size()); ++c) g.cell(g.rows - 1, c) = cells[static_cast<size_t>(c)];
}

void remove_row(ui::Control& grid, int r) {
  ui::GridCells& g = grid.grid;
  if (r < g.fixed_rows || r >= g.rows) return;
  if (g.rows == 2) return clear_rows(grid);
  const auto cells = static_cast<size_t>(g.rows * g.cols);
  if (g.text.size() != cells || g.colour.size() != cells) g.resize(g.rows, g.cols);
  auto from = static_cast<std::ptrdiff_t>(r * g.cols), to = from + g.cols;
  g.text.erase(g.text.begin() + from, g.text.begin() + to);
  g.colour.erase(g.colour.begin() + from, g.colour.begin() + to);
  --g.rows;
  if (g.row >= g.rows) g.row = g.rows - 1;
}

void stripe(ui::Control& grid) { ui::zebra_grid(grid, 1, kBand); }

}  // namespace mz::sales::venda
