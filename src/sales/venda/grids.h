#pragma once
// The row operations of the sale's two grids, as the screen's handlers do them.
#include <string>
#include <vector>

#include "ui/control.h"

namespace mz::sales::venda {

// Empties the grid to its heading row.
void clear_rows(ui::Control& grid);
// Appends a row with these cells.
void append_row(ui::Control& grid, const std::vector<std::string>& cells);
// Takes out data row r: a grid of exactly two rows goes back to its heading,
// as the old grid could not lose its last data row.
void remove_row(ui::Control& grid, int r);
// The data rows banded after every change.
void stripe(ui::Control& grid);

}  // namespace mz::sales::venda
