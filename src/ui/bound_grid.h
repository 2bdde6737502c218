#pragma once
// A grid bound to a query: setting the file and the statement and refreshing
// shows the rows, the column names as the heading.
#include "ui/control.h"

namespace mz::ui {

// Runs the grid's record_source on its database_name and fills the cells:
// row 0 the column names, then one row per record as the screens show values.
void refresh_bound_grid(Control& grid);

}  // namespace mz::ui
