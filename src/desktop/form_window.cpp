#include "desktop/form_window.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QFileInfo>
#include <QVBoxLayout>

#include <algorithm>

#include "core/text.h"
#include "desktop/desktop.h"
#include "desktop/grid_table.h"
#include "desktop/page_layout.h"
#include "ui/keys.h"

namespace mz::desktop {
namespace {

using ui::ControlKind;

QString q(const std::string& s) { return QString::fromStdString(s); }

// The runtime's colours are blue-green-red, as the screens give them.
QColor colour(uint32_t bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }

int runtime_key(int qt_key) {
  switch (qt_key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return ui::key::kEnter;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return ui::key::kTab;
    case Qt::Key_Escape: return ui::key::kEscape;
    case Qt::Key_Backspace: return ui::key::kBackspace;
    case Qt::Key_Up: return ui::key::kUp;
    case Qt::Key_Down: return ui::key::kDown;
    default:
      if (qt_key >= Qt::Key_F1 && qt_key <= Qt::Key_F12) return ui::key::kF1 + (qt_key - Qt::Key_F1);
      return 0;
  }
}

// The runtime's selection, kept inside the text the widget holds; a field
// without the focus shows none.
void select(QLineEdit* line, const ui::Control& c, bool focused) {
  if (!focused) return line->deselect();
  int length = static_cast<int>(line->text().size());
  int start = std::min(static_cast<int>(c.sel_start), length);
  line->setSelection(start, std::min(static_cast<int>(c.sel_length), length - start));
}

// A run of this many unlabelled text boxes is a block of size slots.
constexpr int kSlotBlock = 10;

bool is_table(const QWidget* w) { return qobject_cast<const QTableWidget*>(w) != nullptr; }

bool is_caption(const ui::Control& c) { return c.kind() == ControlKind::Label && !c.text().empty(); }

// The width of buttons that may stand beside the field they act on.
constexpr int kButtonsBeside = 400;

// Wider than this, a line of text wraps.
constexpr int kLongestLine = 600;

// A bold figure under a bold caption of its own is a total the clerk and the
// customer read across the counter: it is drawn this much larger.
constexpr double kFigureScale = 2.5;

bool is_stressed_figure(const ui::Control& c) {
  const ui::Control* caption = c.form().find("L" + c.name());
  return c.kind() == ControlKind::Label && c.bold && caption && caption->bold;
}

bool is_wide(const ui::Control& c) {
  return c.kind() == ControlKind::Grid || c.kind() == ControlKind::BoundGrid || c.kind() == ControlKind::ListBox;
}

}  // namespace

FormWindow::FormWindow(Desktop& desktop, ui::Form& form) : desktop_(desktop), form_(form) {
  auto* outer = new QVBoxLayout(this);
  std::vector<QWidget*> bar;
  const auto& controls = form.controls();

  // A screen with tabs lays each control on its page; page 0 of a screen
  // without tabs is the window itself.
  std::vector<QVBoxLayout*> pages;
  const ui::Control* tabs_control = nullptr;
  for (const auto& c : controls) {
    if (c->kind() != ControlKind::Tabs) continue;
    auto* tabs = new QTabWidget(this);
    for (const auto& title : c->items) {
      auto* page = new QWidget(tabs);
      pages.push_back(new QVBoxLayout(page));
      tabs->addTab(page, q(title));
    }
    ui::Control& tab_control = *c;
    connect(tabs, &QTabWidget::currentChanged, this, [this, &tab_control](int index) {
      if (tab_control.list_index == index) return;
      tab_control.list_index = index;
      if (tab_control.on_click) tab_control.on_click();
      desktop_.sync();
    });
    tabs->setObjectName(q(c->name()));
    widgets_[c.get()] = tabs;
    outer->addWidget(tabs, 1);
    tabs_control = c.get();
    break;
  }
  auto* untabbed = new QVBoxLayout;
  outer->addLayout(untabbed, tabs_control ? 0 : 1);
  // Controls beside the tabs stand above them when declared before them,
  // below them when declared after.
  auto* above_tabs = new QVBoxLayout;
  if (tabs_control) outer->insertLayout(0, above_tabs);
  bool after_tabs = false;
  std::map<const ui::Control*, bool> declared_after_tabs;
  for (const auto& c : controls) {
    if (c.get() == tabs_control) after_tabs = true;
    declared_after_tabs[c.get()] = after_tabs;
  }

  auto page_of = [&](const ui::Control& c) -> QVBoxLayout* {
    if (pages.empty()) return untabbed;
    if (c.page == ui::kOutsideTabs) return declared_after_tabs[&c] ? untabbed : above_tabs;
    return pages.at(static_cast<size_t>(std::clamp<int>(c.page, 0, static_cast<int>(pages.size()) - 1)));
  };
  std::map<QVBoxLayout*, std::vector<PagePlace>> items;
  QMenu* menu = nullptr;
  for (size_t i = 0; i < controls.size(); ++i) {
    ui::Control& c = *controls[i];
    if (c.kind() == ControlKind::Tabs) continue;
    if (c.kind() == ControlKind::MenuItem) {
      if (!menu) {
        auto* menu_bar = new QMenuBar(this);
        outer->setMenuBar(menu_bar);
        menu = menu_bar->addMenu("&Opções");
        menu->setToolTipsVisible(true);
      }
      QString text = q(c.text());
      if (c.shortcut) text += "\tF" + QString::number(c.shortcut - ui::key::kF1 + 1);
      QAction* action = menu->addAction(text);
      if (!c.tooltip.empty()) action->setToolTip(q(c.tooltip));
      connect(action, &QAction::triggered, this, [this, &c] {
        desktop_.runtime().click(c);
        desktop_.sync();
      });
      continue;
    }
    std::vector<PagePlace>& page = items[page_of(c)];
    // A button on a later tab belongs to that tab, with the buttons declared
    // beside it in a row of their own; the others to the bar.
    if (c.kind() == ControlKind::Button) {
      if (pages.empty() || c.page <= 0) {
        bar.push_back(make_widget(c));
        continue;
      }
      std::vector<QWidget*> row;
      for (; i < controls.size() && controls[i]->kind() == ControlKind::Button && controls[i]->page == c.page; ++i)
        row.push_back(make_widget(*controls[i]));
      --i;
      page.push_back({nullptr, nullptr, button_bar(row), true});
      continue;
    }
    // Options followed by the field they qualify (a discount in % or R$) stand
    // in one line with it, under the heading before them when there is one.
    if (c.kind() == ControlKind::OptionButton || (is_caption(c) && i + 1 < controls.size() &&
                                                  controls[i + 1]->kind() == ControlKind::OptionButton)) {
      if (QWidget* row = option_row(i)) {
        page.push_back({c.kind() == ControlKind::Label ? make_widget(c) : nullptr, row, nullptr, false});
        continue;
      }
    }
    // A named block: each caption above its field, ten a row.
    if (!c.block.empty()) {
      auto* block = new QGridLayout;
      block->setHorizontalSpacing(4);
      block->setColumnStretch(kSlotBlock, 1);  // the block packs to the left
      block->setVerticalSpacing(1);
      int k = 0;
      for (; i < controls.size() && controls[i]->block == c.block; ++i, ++k) {
        ui::Control& member = *controls[i];
        QWidget* w = make_widget(member);
        bool caption = member.kind() == ControlKind::Label && i + 1 < controls.size() &&
                       controls[i + 1]->block == c.block && controls[i + 1]->kind() != ControlKind::Label;
        if (caption) {
          w->setMinimumWidth(0);
          block->addWidget(w, (k / kSlotBlock) * 2, k % kSlotBlock, Qt::AlignBottom | Qt::AlignHCenter);
          QWidget* field = make_widget(*controls[++i]);
          field->setMaximumWidth(72);
          block->addWidget(field, (k / kSlotBlock) * 2 + 1, k % kSlotBlock);
        } else {
          w->setMaximumWidth(72);
          block->addWidget(w, (k / kSlotBlock) * 2 + 1, k % kSlotBlock);
        }
      }
      --i;
      page.push_back({nullptr, nullptr, block, true});
      continue;
    }
    // Size slots declared as a plain run of text boxes: ten a row, compact.
    size_t run = 0;
    while (i + run < controls.size() && controls[i + run]->kind() == ControlKind::TextBox &&
           controls[i + run]->page == c.page && controls[i + run]->block.empty())
      ++run;
    if (run >= kSlotBlock) {
      auto* block = new QGridLayout;
      for (size_t k = 0; k < run; ++k) {
        QWidget* box = make_widget(*controls[i + k]);
        box->setMaximumWidth(60);
        block->addWidget(box, static_cast<int>(k) / kSlotBlock, static_cast<int>(k) % kSlotBlock);
      }
      page.push_back({nullptr, nullptr, block, true});
      i += run - 1;
      continue;
    }
    // A caption joins the field that follows it on the same page; one that
    // ends in ":", or is named for the label after it, joins that label too,
    // the figure it names.
    if (is_caption(c) && i + 1 < controls.size()) {
      const ui::Control& next = *controls[i + 1];
      const bool named_for_next = c.name() == "L" + next.name();
      const bool names_figure = next.kind() == ControlKind::Label && (c.text().back() == ':' || named_for_next);
      // Options and check boxes carry their own text: a line before them heads the group.
      const bool self_captioned = next.kind() == ControlKind::OptionButton || next.kind() == ControlKind::CheckBox;
      if ((next.kind() != ControlKind::Label || names_figure) && (!self_captioned || named_for_next) &&
          next.kind() != ControlKind::Button &&
          next.kind() != ControlKind::MenuItem && next.page == c.page && next.block.empty() && !is_wide(next) &&
          (!c.bold || named_for_next)) {  // a bold line of its own heads what follows
        QWidget* caption = make_widget(c);
        QWidget* field = make_widget(*controls[++i]);
        page.push_back({caption, with_buttons_beside(field, i), nullptr, false});
        continue;
      }
    }
    // A heading line over a block or a grid stands above it, as wide as it.
    bool heads_wide = c.kind() == ControlKind::Label && i + 1 < controls.size() &&
                      (!controls[i + 1]->block.empty() || is_wide(*controls[i + 1]));
    page.push_back({nullptr, make_widget(c), nullptr, is_wide(c) || heads_wide, c.kind() == ControlKind::Image});
  }
  for (auto& [page, list] : items) lay_out_page(page, list);
  outer->addLayout(button_bar(bar));
  setWindowTitle(q(form.caption));
  refresh();
}

// Buttons declared right after a field, with more of the screen after them,
// act on that field ("< Busca", "DETALHES"): they stand beside it rather
// than in the bar at the foot. `i` moves past the buttons taken.
QWidget* FormWindow::with_buttons_beside(QWidget* field, size_t& i) {
  const auto& controls = form_.controls();
  const ui::Control& owner = *controls[i];
  if (!owner.is_entry()) return field;
  size_t end = i + 1;
  while (end < controls.size() && controls[end]->kind() == ControlKind::Button && controls[end]->page == owner.page)
    ++end;
  const bool more_after = end < controls.size() && controls[end]->kind() != ControlKind::Button &&
                          controls[end]->kind() != ControlKind::MenuItem;
  if (end == i + 1 || !more_after) return field;
  std::vector<QWidget*> buttons;
  int width = 0;
  for (++i; i < end; ++i) {
    buttons.push_back(make_widget(*controls[i]));
    width += buttons.back()->sizeHint().width();
  }
  --i;
  auto* row = new QWidget(this);
  field->setMinimumWidth(kFieldWidthInRows);  // the buttons never squeeze the field away
  // Many of them would push the row past the display: they stand under the field.
  if (width > kButtonsBeside) {
    auto* lines = new QVBoxLayout(row);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addWidget(field);
    lines->addLayout(button_bar(buttons));
    return row;
  }
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(field, 1);
  for (QWidget* button : buttons) line->addWidget(button);
  return row;
}

// At `i`, options of one group (after their heading, when `i` is on it) and
// then a field with no caption of its own: one row of them all, `i` on the
// field. Anything else gives none and leaves `i` alone.
QWidget* FormWindow::option_row(size_t& i) {
  const auto& controls = form_.controls();
  size_t first = controls[i]->kind() == ControlKind::Label ? i + 1 : i;
  size_t end = first;
  while (end < controls.size() && controls[end]->kind() == ControlKind::OptionButton &&
         controls[end]->group == controls[first]->group && controls[end]->page == controls[first]->page)
    ++end;
  const bool field_follows = end < controls.size() && controls[end]->is_entry() &&
                             controls[end]->page == controls[first]->page && controls[end]->block.empty();
  if (!field_follows) return nullptr;
  auto* row = new QWidget(this);
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  for (size_t k = first; k < end; ++k) line->addWidget(make_widget(*controls[k]));
  line->addWidget(make_widget(*controls[end]), 1);
  i = end;
  return row;
}

QWidget* FormWindow::make_widget(ui::Control& c) {
  QWidget* w = nullptr;
  switch (c.kind()) {
    case ControlKind::TextBox:
    case ControlKind::MaskedBox:
      if (c.multi_line) {
        auto* notes = new QPlainTextEdit(this);
        notes->setFixedHeight(3 * notes->fontMetrics().lineSpacing() + 12);
        w = notes;
      } else {
        w = new QLineEdit(this);
      }
      break;
    case ControlKind::ComboBox: {
      auto* combo = new QComboBox(this);
      combo->setEditable(true);
      combo->setInsertPolicy(QComboBox::NoInsert);
      connect(combo, QOverload<int>::of(&QComboBox::activated), this, [this, &c](int index) {
        c.set_list_index(index);
        if (c.on_click) c.on_click();
        desktop_.sync();
      });
      // The runtime keeps a combo's choice: leaving the field with the text of
      // an item is no choice of it, as Qt would make it.
      disconnect(combo->lineEdit(), SIGNAL(editingFinished()), combo, nullptr);
      watch(combo->lineEdit(), c);
      w = combo;
      break;
    }
    case ControlKind::ListBox: {
      auto* list = new QListWidget(this);
      // Choosing an item, by the mouse or the arrows, is the list's click.
      connect(list, &QListWidget::currentRowChanged, this, [this, &c](int row) {
        if (row < 0 || row == c.list_index) return;
        c.set_list_index(row);
        desktop_.runtime().click(c);
        desktop_.sync();
      });
      w = list;
      break;
    }
    case ControlKind::OptionButton:
    case ControlKind::CheckBox: {
      QAbstractButton* b = c.kind() == ControlKind::OptionButton ? static_cast<QAbstractButton*>(new QRadioButton(this))
                                                                 : new QCheckBox(this);
      b->setAutoExclusive(false);  // the runtime decides what is checked
      connect(b, &QAbstractButton::clicked, this, [this, &c] {
        desktop_.runtime().click(c);
        desktop_.sync();
      });
      w = b;
      break;
    }
    case ControlKind::Button: {
      auto* b = new QPushButton(this);
      b->setAutoDefault(false);
      connect(b, &QPushButton::clicked, this, [this, &c] {
        desktop_.runtime().click(c);
        desktop_.sync();
      });
      w = b;
      break;
    }
    case ControlKind::Grid:
    case ControlKind::BoundGrid: {
      auto* t = new GridTable(this);
      connect(t, &QTableWidget::cellDoubleClicked, this, [this, &c](int r, int) {
        c.grid.row = r + heading_rows(c.grid);
        desktop_.runtime().dbl_click(c);
        desktop_.sync();
      });
      connect(t, &QTableWidget::cellClicked, this, [this, &c](int r, int) {
        c.grid.row = r + heading_rows(c.grid);
        desktop_.runtime().click(c);
        desktop_.sync();
      });
      // The arrows move the grid's row as they move the table's.
      connect(t, &QTableWidget::currentCellChanged, this, [&c](int r, int col, int, int) {
        if (r < 0) return;
        c.grid.row = r + heading_rows(c.grid);
        c.grid.col = col;
      });
      // A cell left after typing is what the runtime's edit of a cell is.
      if (c.editable_cells) {
        t->set_editable(true);
        t->on_cell_left = [this, &c](int r, int col, const QString& text) {
          ui::GridCells& g = c.grid;
          g.row = r + heading_rows(g);
          g.col = col;
          g.cell(g.row, col) = text.toStdString();
          if (c.on_change) c.on_change();
          desktop_.sync();
        };
      }
      w = t;
      break;
    }
    default:
      w = new QLabel(this);
      break;
  }
  // Captions are known before the page is laid out, which measures them.
  if (auto* label = qobject_cast<QLabel*>(w); label && c.kind() != ControlKind::Image) label->setText(q(c.text()));
  if (auto* button = qobject_cast<QAbstractButton*>(w)) button->setText(q(c.text()));
  w->setObjectName(q(c.name()));
  if (!c.tooltip.empty()) w->setToolTip(q(c.tooltip));
  // A long line of instructions wraps rather than widen the screen past the display.
  if (auto* label = qobject_cast<QLabel*>(w);
      label && c.kind() == ControlKind::Label && !c.bold && label->sizeHint().width() > kLongestLine)
    label->setWordWrap(true);
  if (c.bold) {
    QFont font = w->font();
    font.setBold(true);
    if (is_stressed_figure(c)) font.setPointSizeF(font.pointSizeF() * kFigureScale);
    w->setFont(font);
  }
  watch(w, c);
  widgets_[&c] = w;
  return w;
}

void FormWindow::watch(QWidget* w, ui::Control& c) {
  w->installEventFilter(this);
  controls_[w] = &c;
}

QWidget* FormWindow::widget(const ui::Control& control) const {
  auto it = widgets_.find(const_cast<ui::Control*>(&control));
  return it == widgets_.end() ? nullptr : it->second;
}

void FormWindow::refresh() {
  setWindowTitle(q(form_.caption));
  for (const auto& [control, w] : widgets_) {
    const ui::Control& c = *control;
    const bool has_focus = desktop_.runtime().focused() == control;
    w->setVisible(c.visible);
    w->setEnabled(c.enabled);
    if (auto* line = qobject_cast<QLineEdit*>(w)) {
      if (line->text() != q(c.text())) line->setText(q(c.text()));
      select(line, c, has_focus);
      QPalette p = line->palette();
      p.setColor(QPalette::Base, colour(c.back_colour));
      line->setPalette(p);
    } else if (auto* notes = qobject_cast<QPlainTextEdit*>(w)) {
      if (notes->toPlainText() != q(c.text())) notes->setPlainText(q(c.text()));
      QTextCursor cursor = notes->textCursor();
      int length = static_cast<int>(notes->toPlainText().size());
      int start = has_focus ? std::min(static_cast<int>(c.sel_start), length) : length;
      cursor.setPosition(start);
      if (has_focus) cursor.setPosition(std::min(start + static_cast<int>(c.sel_length), length), QTextCursor::KeepAnchor);
      notes->setTextCursor(cursor);
      QPalette p = notes->palette();
      p.setColor(QPalette::Base, colour(c.back_colour));
      notes->setPalette(p);
    } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
      // A list of thousands of names is rebuilt only when it changed.
      std::vector<std::string>& shown = shown_items_[control];
      if (shown != c.items) {
        QStringList items;
        for (const auto& item : c.items) items << q(item);
        combo->clear();
        combo->addItems(items);
        shown = c.items;
      }
      if (c.dropped_down) {
        control->dropped_down = false;  // the request is carried out once
        QTimer::singleShot(0, combo, [combo] { combo->showPopup(); });
      }
      // The arrows move on from the runtime's choice, none at first.
      if (combo->currentIndex() != c.list_index && c.list_index < combo->count()) combo->setCurrentIndex(c.list_index);
      if (combo->currentText() != q(c.text())) combo->setEditText(q(c.text()));
      select(combo->lineEdit(), c, has_focus);
      QPalette p = combo->lineEdit()->palette();
      p.setColor(QPalette::Base, colour(c.back_colour));
      combo->lineEdit()->setPalette(p);
    } else if (auto* list = qobject_cast<QListWidget*>(w)) {
      const QSignalBlocker quiet(list);  // the runtime's own choice is no click
      std::vector<std::string>& shown = shown_items_[control];
      if (shown != c.items) {
        list->clear();
        for (const auto& item : c.items) list->addItem(q(item));
        shown = c.items;
      }
      if (list->currentRow() != c.list_index) list->setCurrentRow(c.list_index);
      // As tall as its items, up to eight rows; a longer list scrolls.
      int rows = std::clamp(static_cast<int>(c.items.size()), 2, 8);
      list->setMaximumHeight(rows * std::max(list->sizeHintForRow(0), list->fontMetrics().height()) +
                             2 * list->frameWidth() + 2);
    } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
      button->setText(q(c.text()));
      button->setChecked(c.checked());
      // A button or an option in focus shows it as a field does: in the focus colour.
      QPalette p = button->palette();
      const QColor back = has_focus ? colour(ui::kFocusColour) : palette().color(QPalette::Button);
      p.setColor(QPalette::Button, back);
      p.setColor(QPalette::Window, has_focus ? back : palette().color(QPalette::Window));
      button->setPalette(p);
      button->setAutoFillBackground(has_focus && !qobject_cast<QPushButton*>(button));
    } else if (auto* table = dynamic_cast<GridTable*>(w)) {
      const ui::GridCells& g = c.grid;
      // A long list is rebuilt only when its cells changed.
      auto& shown = shown_cells_[control];
      if (shown.first != g.text || shown.second != g.colour || table->rowCount() != g.rows - heading_rows(g)) {
        shown = {g.text, g.colour};
        table->show_cells(g);
      }
      // A grid in focus shows the runtime's current cell: one whose handler
      // moves along the cells as the user types shows where the typing goes.
      if (has_focus && table->rowCount() > 0 && table->columnCount() > 0) {
        const int row = std::clamp(g.row - heading_rows(g), 0, table->rowCount() - 1);
        const int col = std::clamp(g.col, 0, table->columnCount() - 1);
        if (table->currentRow() != row || table->currentColumn() != col) table->setCurrentCell(row, col);
      }
    } else if (auto* tabs = qobject_cast<QTabWidget*>(w)) {
      if (c.list_index >= 0 && tabs->currentIndex() != c.list_index) {
        switching_page_ = true;
        tabs->setCurrentIndex(c.list_index);
        switching_page_ = false;
      }
    } else if (c.kind() == ControlKind::Image) {
      show_picture(static_cast<QLabel*>(w), c.text(), c.picture_size ? c.picture_size : 160);
    } else if (auto* label = qobject_cast<QLabel*>(w)) {
      label->setText(q(c.text()));
    }
  }
}

// An image whose text names a picture file shows the picture; otherwise its
// text is a caption, as on the main screens.
void FormWindow::show_picture(QLabel* label, const std::string& text, int size) {
  if (label->property("shown").toString() == q(text)) return;
  label->setProperty("shown", q(text));
  QPixmap pixmap = QFileInfo(q(text)).isFile() ? QPixmap(q(text)) : QPixmap();
  if (pixmap.isNull()) {
    label->setPixmap(QPixmap());
    label->setText(q(text));
    return;
  }
  label->setText("");
  label->setFixedSize(size, size);
  label->setAlignment(Qt::AlignCenter);
  label->setPixmap(pixmap.scaled(label->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

bool FormWindow::has_grid() const {
  return std::any_of(widgets_.begin(), widgets_.end(), [](const auto& entry) { return is_table(entry.second); });
}

bool FormWindow::forward_key(ui::Control& c, QKeyEvent* key) {
  ui::Runtime& rt = desktop_.runtime();
  // Typing in a grid with editable cells opens the current cell's editor.
  if (auto* table = dynamic_cast<GridTable*>(widget(c));
      table && table->editable() && (key->key() == Qt::Key_F2 || (!key->text().isEmpty() && key->text()[0].isPrint())))
    return false;
  if (rt.focused() != &c) rt.set_focus(c);
  if (int code = runtime_key(key->key())) {
    rt.press_key(code, key->key() == Qt::Key_Backtab || (key->modifiers() & Qt::ShiftModifier) ? 1 : 0);
    // The arrows also move a grid's or a list's row and a combo's choice, as the old ones did.
    const bool arrow = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down;
    if (arrow && (is_table(widget(c)) || c.kind() == ControlKind::ListBox || c.kind() == ControlKind::ComboBox)) {
      desktop_.sync();
      return false;
    }
  } else if (!key->text().isEmpty() && key->text()[0].isPrint()) {
    for (char32_t ch : to_u32(key->text().toStdString())) rt.type_char(ch);
  } else {
    return false;  // arrows inside the text and the like stay with the widget
  }
  desktop_.sync();
  return true;
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  auto it = controls_.find(watched);
  if (it == controls_.end()) return QWidget::eventFilter(watched, event);
  ui::Control& c = *it->second;
  switch (event->type()) {
    case QEvent::FocusIn: {
      // Only these reasons are the user moving; a dialog or a menu is not.
      auto reason = static_cast<QFocusEvent*>(event)->reason();
      if (!switching_page_ && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::MouseFocusReason ||
          reason == Qt::ShortcutFocusReason)) {
        if (desktop_.runtime().focused() != &c) {
          desktop_.runtime().set_focus(c);
          desktop_.sync();
        }
      }
      return false;
    }
    case QEvent::KeyPress:
      return forward_key(c, static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
      if (c.kind() == ControlKind::Label || c.kind() == ControlKind::Image) {
        desktop_.runtime().click(c);
        desktop_.sync();
        return true;
      }
      return false;
    default:
      return false;
  }
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  ui::Runtime& rt = desktop_.runtime();
  if (int code = runtime_key(event->key())) rt.press_key(code, event->modifiers() & Qt::ShiftModifier ? 1 : 0);
  else return QWidget::keyPressEvent(event);
  desktop_.sync();
}

void FormWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  QTimer::singleShot(0, this, [this] { desktop_.sync(); });
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // The window's close box unloads the screen, as the old forms did.
  event->ignore();
  desktop_.runtime().close(form_.name());
  desktop_.sync();
}

}  // namespace mz::desktop
