#pragma once
// A flex grid drawn as a table: its heading row stands as the table's
// header, and its first column stays in place while the others scroll
// sideways, so a wide grid still shows which reference each row is.
#include <QTableWidget>

#include "ui/control.h"

namespace mz::desktop {

// Row 0 of a grid with a fixed row is its heading: the table's header, which
// stays in sight as the rows scroll.
inline int heading_rows(const ui::GridCells& g) { return g.fixed_rows > 0 ? 1 : 0; }

class GridTable : public QTableWidget {
 public:
  explicit GridTable(QWidget* parent);

  // Draws the grid's cells: the heading, the rows, their colours.
  void show_cells(const ui::GridCells& g);

  // The columns that stay in place; 0 lets every column scroll.
  void set_frozen_columns(int count);
  int frozen_columns() const { return frozen_count_; }
  // The view drawn over the frozen columns.
  QTableView* frozen_view() const { return frozen_; }
  // After the cells changed: the frozen view takes the new widths.
  void follow_columns();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  // Moving along a row never leaves the current cell under the frozen columns.
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 private:
  int frozen_width() const;
  void place_frozen();
  void snap(int offset);
  void follow_focus();
  void fill_width();

  QTableView* frozen_;
  // With figures in the last column, the widest column of text takes the
  // width left; -1 when the last column stretches instead.
  int filling_col_ = -1;
  int filling_natural_ = 0;  // its width fitted to its contents
  int frozen_count_ = 0;
  int last_offset_ = 0;  // the horizontal offset before the last move
  bool snapping_ = false;
};

}  // namespace mz::desktop
