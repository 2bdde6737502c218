#include "desktop/grid_table.h"

#include <QHeaderView>
#include <QRegularExpression>
#include <QScrollBar>

#include <algorithm>

namespace mz::desktop {
namespace {

QString q(const std::string& s) { return QString::fromStdString(s); }

// The runtime's colours are blue-green-red, as the screens give them.
QColor colour(uint32_t bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }

// A number or an amount ("1.358,40", "-3", "0007"), which a grid aligns to
// the right as the old grids did; anything else reads from the left.
bool is_number(const std::string& text) {
  static const QRegularExpression kNumber(R"(^-?[0-9][0-9.]*(,[0-9]+)?$)");
  return kNumber.match(q(text)).hasMatch();
}

}  // namespace

GridTable::GridTable(QWidget* parent) : QTableWidget(parent), frozen_(new QTableView(this)) {
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionBehavior(SelectRows);  // a row is what a double click opens or removes
  setSelectionMode(SingleSelection);
  setWordWrap(false);
  verticalHeader()->hide();
  horizontalHeader()->setStretchLastSection(true);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  // Rows as tall as the text: a screen shows more lines of its document.
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  setHorizontalScrollMode(ScrollPerPixel);

  // The frozen view shares the cells and the selection; it never takes the
  // keyboard, the grid under it does.
  frozen_->setModel(model());
  frozen_->setSelectionModel(selectionModel());
  frozen_->setFocusPolicy(Qt::NoFocus);
  frozen_->setSelectionBehavior(SelectRows);
  frozen_->setFrameShape(QFrame::NoFrame);
  frozen_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  frozen_->setWordWrap(false);
  frozen_->verticalHeader()->hide();
  frozen_->verticalHeader()->setDefaultSectionSize(verticalHeader()->defaultSectionSize());
  frozen_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  frozen_->horizontalHeader()->setHighlightSections(false);
  frozen_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  frozen_->setVerticalScrollMode(verticalScrollMode());
  frozen_->hide();
  viewport()->stackUnder(frozen_);

  connect(frozen_->verticalScrollBar(), &QAbstractSlider::valueChanged, verticalScrollBar(), &QAbstractSlider::setValue);
  connect(verticalScrollBar(), &QAbstractSlider::valueChanged, frozen_->verticalScrollBar(), &QAbstractSlider::setValue);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int size) {
    if (column < frozen_count_) {
      frozen_->setColumnWidth(column, size);
      place_frozen();
    }
  });
  connect(verticalHeader(), &QHeaderView::sectionResized, this,
          [this](int row, int, int size) { frozen_->setRowHeight(row, size); });
  connect(horizontalScrollBar(), &QAbstractSlider::valueChanged, this, &GridTable::snap);
  // A click or a double click on the frozen cells is one on the grid's.
  connect(frozen_, &QAbstractItemView::clicked, this,
          [this](const QModelIndex& index) { emit cellClicked(index.row(), index.column()); });
  connect(frozen_, &QAbstractItemView::doubleClicked, this,
          [this](const QModelIndex& index) { emit cellDoubleClicked(index.row(), index.column()); });
}

void GridTable::show_cells(const ui::GridCells& g) {
  const int heading = heading_rows(g);
  setRowCount(std::max(0, g.rows - heading));
  setColumnCount(g.cols);
  horizontalHeader()->setVisible(heading > 0);
  if (heading) {
    QStringList captions;
    for (int col = 0; col < g.cols; ++col) captions << q(g.cell(0, col));
    setHorizontalHeaderLabels(captions);
  }
  QFont bold = font();
  bold.setBold(true);
  for (int r = heading; r < g.rows; ++r)
    for (int col = 0; col < g.cols; ++col) {
      auto* item = new QTableWidgetItem(q(g.cell(r, col)));
      item->setBackground(colour(g.colour.empty() ? ui::kWhite : g.colour[static_cast<size_t>(r * g.cols + col)]));
      if (r < g.fixed_rows) item->setFont(bold);
      if (is_number(g.cell(r, col))) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      setItem(r - heading, col, item);
    }
  resizeColumnsToContents();
  if (rowCount() == 0) horizontalScrollBar()->setValue(0);  // an emptied grid starts at its left
  // The last column takes the width left, unless it holds figures, which
  // would then stand far from what they count. Fitting the columns to their
  // contents undid the stretch.
  bool figures = false;
  for (int r = heading; r < g.rows && !figures && g.cols > 0; ++r) figures = is_number(g.cell(r, g.cols - 1));
  horizontalHeader()->setStretchLastSection(false);
  horizontalHeader()->setStretchLastSection(!figures);
  // The figures then stand at the right edge, and the text that says what
  // they are (a product's description) takes the room left beside them.
  filling_col_ = -1;
  for (int col = 0; figures && col < g.cols && g.rows > heading; ++col)
    if (!is_number(g.cell(heading, col)) && (filling_col_ < 0 || columnWidth(col) > columnWidth(filling_col_)))
      filling_col_ = col;
  if (filling_col_ >= 0) filling_natural_ = columnWidth(filling_col_);
  fill_width();
  // Every grid keeps its first column in sight as it scrolls sideways: the
  // reference or the name that says what a row is.
  set_frozen_columns(std::max(1, g.fixed_cols));
}

void GridTable::fill_width() {
  if (filling_col_ < 0 || filling_col_ >= columnCount()) return;
  int others = 0;
  for (int col = 0; col < columnCount(); ++col)
    if (col != filling_col_) others += columnWidth(col);
  setColumnWidth(filling_col_, std::max(filling_natural_, viewport()->width() - others));
}

void GridTable::set_frozen_columns(int count) {
  frozen_count_ = std::max(0, count);
  follow_columns();
}

void GridTable::follow_columns() {
  frozen_->horizontalHeader()->setVisible(!horizontalHeader()->isHidden());
  for (int col = 0; col < columnCount(); ++col) {
    frozen_->setColumnHidden(col, col >= frozen_count_);
    if (col < frozen_count_) frozen_->setColumnWidth(col, columnWidth(col));
  }
  place_frozen();
}

int GridTable::frozen_width() const {
  int width = 0;
  for (int col = 0; col < std::min(frozen_count_, columnCount()); ++col) width += columnWidth(col);
  return width;
}

void GridTable::place_frozen() {
  // Nothing to hold in place when every column is frozen, nor when the frozen
  // columns would hide most of the others.
  const bool holds = frozen_count_ > 0 && frozen_count_ < columnCount() && frozen_width() <= viewport()->width() / 2;
  frozen_->setVisible(holds);
  if (!holds) return;
  const int header = horizontalHeader()->isHidden() ? 0 : horizontalHeader()->height();
  frozen_->setGeometry(frameWidth(), frameWidth(), std::min(frozen_width(), viewport()->width()),
                       viewport()->height() + header);
}

// A column that scrolled partly under the frozen ones would show a cut
// sliver: the offset stops where a column starts right beside them, the next
// stop in the direction the user moved.
void GridTable::snap(int offset) {
  QScrollBar* bar = horizontalScrollBar();
  const int from = last_offset_;
  last_offset_ = offset;
  if (snapping_ || frozen_->isHidden() || offset == bar->maximum() || offset == from) return;
  const int frozen = frozen_width();
  int stop = offset > from ? bar->maximum() : 0;
  for (int col = frozen_count_; col < columnCount(); ++col) {
    const int start = horizontalHeader()->sectionPosition(col) - frozen;
    if (offset > from && start >= offset) {
      stop = std::min(stop, start);
      break;
    }
    if (offset < from && start <= offset) stop = std::max(stop, start);
  }
  snapping_ = true;
  bar->setValue(stop);
  snapping_ = false;
  last_offset_ = bar->value();
}

// The frozen view never has the focus: it draws its selection as the grid
// under it draws it, with or without the focus.
void GridTable::follow_focus() {
  const QPalette::ColorGroup state = hasFocus() ? QPalette::Active : QPalette::Inactive;
  QPalette p = frozen_->palette();
  for (QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
    p.setColor(QPalette::Inactive, role, palette().color(state, role));
  frozen_->setPalette(p);
}

void GridTable::focusInEvent(QFocusEvent* event) {
  QTableWidget::focusInEvent(event);
  follow_focus();
}

void GridTable::focusOutEvent(QFocusEvent* event) {
  QTableWidget::focusOutEvent(event);
  follow_focus();
}

void GridTable::resizeEvent(QResizeEvent* event) {
  QTableWidget::resizeEvent(event);
  fill_width();
  place_frozen();
}

QModelIndex GridTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  QModelIndex current = QTableWidget::moveCursor(action, modifiers);
  if (action == MoveLeft && !frozen_->isHidden() && current.column() >= frozen_count_ &&
      visualRect(current).topLeft().x() < frozen_width()) {
    const int scrolled = horizontalScrollBar()->value() + visualRect(current).topLeft().x() - frozen_width();
    horizontalScrollBar()->setValue(scrolled);
  }
  return current;
}

void GridTable::scrollTo(const QModelIndex& index, ScrollHint hint) {
  // A frozen cell is always in sight; scrolling to it would move the others.
  if (frozen_->isHidden() || index.column() >= frozen_count_) QTableWidget::scrollTo(index, hint);
}

}  // namespace mz::desktop
