#include "desktop/page_layout.h"

#include <QGridLayout>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <map>
#include <numeric>

namespace mz::desktop {
namespace {

// Fields a column holds before a long form flows into another column, so
// that a card fits a 1366x768 display.
constexpr int kRowsPerColumn = 16;
// Beside a block or a grid the fields run across the page, at most this many
// a row, and leave the height to the grid.
constexpr int kFieldsPerRowBesideWideItems = 4;
constexpr int kSpacing = 6;  // between widgets, as the style spaces them
// The display a large screen is laid out for, less the window's margins.
constexpr int kDisplayWidth = 1366 - 2 * 12;

using Places = std::vector<const PagePlace*>;

bool is_table(const QWidget* w) { return qobject_cast<const QTableWidget*>(w) != nullptr; }

// A field with no caption of its own still lines up with the fields above it.
bool spans_caption(const PagePlace& place) {
  const QWidget* w = place.field;
  const bool entry = qobject_cast<const QLineEdit*>(w) || qobject_cast<const QComboBox*>(w) ||
                     qobject_cast<const QPlainTextEdit*>(w);
  return !place.caption && !entry;
}

bool is_lone_label(const PagePlace& place) {
  return !place.caption && qobject_cast<const QLabel*>(place.field) != nullptr;
}

// A field with buttons under it makes its row taller than a line: the
// captions and fields of that row stand level with the field's first line.
void level_tall_rows(QGridLayout* grid) {
  std::map<int, int> line_height;  // of each tall row
  for (int i = 0; i < grid->count(); ++i) {
    QWidget* w = grid->itemAt(i)->widget();
    const auto* lines = w ? qobject_cast<const QVBoxLayout*>(w->layout()) : nullptr;
    if (!lines || lines->count() < 2) continue;
    int row, col, rows, cols;
    grid->getItemPosition(i, &row, &col, &rows, &cols);
    line_height[row] = lines->itemAt(0)->sizeHint().height();
  }
  for (int i = 0; i < grid->count() && !line_height.empty(); ++i) {
    int row, col, rows, cols;
    grid->getItemPosition(i, &row, &col, &rows, &cols);
    QWidget* w = grid->itemAt(i)->widget();
    const auto tall = line_height.find(row);
    if (!w || rows > 1 || tall == line_height.end()) continue;
    if (qobject_cast<QLabel*>(w)) w->setMinimumHeight(tall->second);  // its text level with the field's
    grid->setAlignment(w, Qt::AlignTop);
  }
}

void add_pictures(QGridLayout* grid, const Places& pictures, int column, int rows) {
  for (size_t p = 0; p < pictures.size(); ++p)
    grid->addWidget(pictures[p]->field, 0, column + static_cast<int>(p), std::max(1, rows), 1, Qt::AlignTop);
}

// A long card: its fields read down columns of at most kRowsPerColumn.
QGridLayout* fields_in_columns(const Places& fields, const Places& pictures) {
  const int count = static_cast<int>(fields.size());
  const int columns = std::max(1, (count + kRowsPerColumn - 1) / kRowsPerColumn);
  const int rows = std::max(1, (count + columns - 1) / columns);
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(3);
  add_pictures(grid, pictures, columns * 2, rows);
  for (int k = 0; k < count; ++k) {
    const PagePlace& place = *fields[static_cast<size_t>(k)];
    const int row = k % rows, col = (k / rows) * 2;
    if (place.caption) grid->addWidget(place.caption, row, col);
    grid->addWidget(place.field, row, spans_caption(place) ? col : col + 1, 1, spans_caption(place) ? 2 : 1);
    grid->setColumnStretch(col + 1, 1);
    grid->setColumnMinimumWidth(col + 1, 190);
  }
  level_tall_rows(grid);
  return grid;
}

// Where each field of a run falls in rows of `columns`: its column, or -1
// for a lone line of text, which stands on a line of its own.
std::vector<int> row_places(const Places& fields, int columns) {
  std::vector<int> places;
  int col = 0;
  for (const PagePlace* place : fields) {
    if (is_lone_label(*place)) {
      places.push_back(-1);
      col = 0;
      continue;
    }
    places.push_back(col);
    col = (col + 1) % columns;
  }
  return places;
}

// The width rows of `columns` fields take: each column as wide as its widest field.
int rows_width(const Places& fields, int columns) {
  std::vector<int> widths(static_cast<size_t>(columns), 0);
  const std::vector<int> places = row_places(fields, columns);
  for (size_t k = 0; k < fields.size(); ++k) {
    if (places[k] < 0) continue;
    const PagePlace& place = *fields[k];
    int width = std::max(place.field->minimumSizeHint().width(), kFieldWidthInRows) + kSpacing;
    if (place.caption) width += place.caption->sizeHint().width() + kSpacing;
    int& column = widths[static_cast<size_t>(places[k])];
    column = std::max(column, width);
  }
  return std::accumulate(widths.begin(), widths.end(), 0);
}

// Fields beside a grid or a block: across the page in as many columns as the
// display takes, at most kFieldsPerRowBesideWideItems, in rows as even as
// they can be (five fields make a row of three and one of two). A lone line
// of text, a help line that changes with the focus, has a line of its own.
QGridLayout* fields_in_rows(const Places& fields, const Places& pictures) {
  const int count = static_cast<int>(
      std::count_if(fields.begin(), fields.end(), [](const PagePlace* place) { return !is_lone_label(*place); }));
  int room = kDisplayWidth;
  for (const PagePlace* picture : pictures) room -= picture->field->sizeHint().width() + kSpacing;
  int columns = std::max(1, std::min(count, kFieldsPerRowBesideWideItems));
  for (; columns > 1; --columns) {
    const int lines = (count + columns - 1) / columns;
    const int even = (count + lines - 1) / lines;
    if (rows_width(fields, even) <= room) {
      columns = even;
      break;
    }
  }
  const std::vector<int> places = row_places(fields, columns);
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(3);
  int row = -1;
  for (size_t k = 0; k < fields.size(); ++k) {
    const PagePlace& place = *fields[k];
    const int col = places[k];
    if (col <= 0) ++row;  // a new line
    if (col < 0) {
      grid->addWidget(place.field, row, 0, 1, columns * 2);
      continue;
    }
    if (place.caption) grid->addWidget(place.caption, row, col * 2);
    grid->addWidget(place.field, row, spans_caption(place) ? col * 2 : col * 2 + 1, 1, spans_caption(place) ? 2 : 1);
    grid->setColumnStretch(col * 2 + 1, 1);
    grid->setColumnMinimumWidth(col * 2 + 1, kFieldWidthInRows);
  }
  add_pictures(grid, pictures, columns * 2, row + 1);
  level_tall_rows(grid);
  return grid;
}

}  // namespace

void lay_out_page(QVBoxLayout* page, const std::vector<PagePlace>& list) {
  const bool has_wide = std::any_of(list.begin(), list.end(), [](const PagePlace& place) { return place.wide; });
  for (size_t i = 0; i < list.size();) {
    if (list[i].wide) {
      if (list[i].block) page->addLayout(list[i].block);
      else page->addWidget(list[i].field, is_table(list[i].field) ? 1 : 0);
      ++i;
      continue;
    }
    size_t end = i;
    while (end < list.size() && !list[end].wide) ++end;
    Places fields, pictures;
    for (size_t k = i; k < end; ++k) (list[k].picture ? pictures : fields).push_back(&list[k]);
    page->addLayout(has_wide ? fields_in_rows(fields, pictures) : fields_in_columns(fields, pictures));
    i = end;
  }
  // A page with no grid to take the height keeps its fields at the top.
  if (std::none_of(list.begin(), list.end(), [](const PagePlace& place) { return is_table(place.field); }))
    page->addStretch();
}

QVBoxLayout* button_bar(const std::vector<QWidget*>& buttons) {
  auto* bar = new QVBoxLayout;
  QHBoxLayout* line = nullptr;
  int used = 0;
  for (QWidget* button : buttons) {
    const int width = button->sizeHint().width() + kSpacing;
    if (!line || used + width > kDisplayWidth) {
      if (line) line->addStretch();
      line = new QHBoxLayout;
      bar->addLayout(line);
      used = 0;
    }
    line->addWidget(button);
    used += width;
  }
  if (line) line->addStretch();
  return bar;
}

}  // namespace mz::desktop
