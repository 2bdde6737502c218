#include "desktop/form_window.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "core/text.h"
#include "desktop/desktop.h"
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

// The runtime's selection, kept inside the text the widget holds.
void select(QLineEdit* line, const ui::Control& c) {
  int length = static_cast<int>(line->text().size());
  int start = std::min(static_cast<int>(c.sel_start), length);
  line->setSelection(start, std::min(static_cast<int>(c.sel_length), length - start));
}

// A run of this many unlabelled text boxes is a block of size slots.
constexpr int kSlotBlock = 10;

}  // namespace

FormWindow::FormWindow(Desktop& desktop, ui::Form& form) : desktop_(desktop), form_(form) {
  auto* outer = new QVBoxLayout(this);
  auto* fields = new QGridLayout;
  auto* buttons = new QHBoxLayout;
  outer->addLayout(fields);
  const auto& controls = form.controls();

  // A screen with tabs lays each control on its page.
  std::vector<QGridLayout*> pages;
  for (const auto& c : controls) {
    if (c->kind() != ControlKind::Tabs) continue;
    auto* tabs = new QTabWidget(this);
    for (const auto& title : c->items) {
      auto* page = new QWidget(tabs);
      pages.push_back(new QGridLayout(page));
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
    fields->addWidget(tabs, 0, 0, 1, 2);
    break;
  }
  outer->addStretch();
  outer->addLayout(buttons);

  std::map<QGridLayout*, int> next_row;
  std::map<QGridLayout*, bool> label_waiting;  // a caption on the row, waiting for its field
  QMenu* menu = nullptr;
  for (size_t i = 0; i < controls.size(); ++i) {
    ui::Control& c = *controls[i];
    if (c.kind() == ControlKind::Tabs) continue;
    if (c.kind() == ControlKind::MenuItem) {
      if (!menu) {
        auto* menu_bar = new QMenuBar(this);
        outer->setMenuBar(menu_bar);
        menu = menu_bar->addMenu("&Opções");
      }
      QString text = q(c.text());
      if (c.shortcut) text += "\tF" + QString::number(c.shortcut - ui::key::kF1 + 1);
      QAction* action = menu->addAction(text);
      connect(action, &QAction::triggered, this, [this, &c] {
        desktop_.runtime().click(c);
        desktop_.sync();
      });
      continue;
    }
    QWidget* w = make_widget(c);
    if (c.kind() == ControlKind::Button) {
      buttons->addWidget(w);
      continue;
    }
    QGridLayout* grid = pages.empty() ? fields : pages.at(static_cast<size_t>(std::clamp<int>(c.page, 0, static_cast<int>(pages.size()) - 1)));
    int& row = next_row[grid];
    if (grid == fields && row == 0 && !pages.empty()) row = 1;  // under the tabs
    // Size slots: ten boxes a row, compact.
    size_t run = 0;
    while (i + run < controls.size() && controls[i + run]->kind() == ControlKind::TextBox &&
           controls[i + run]->page == c.page)
      ++run;
    if (!label_waiting[grid] && run >= kSlotBlock) {
      auto* block = new QGridLayout;
      for (size_t k = 0; k < run; ++k) {
        QWidget* box = k == 0 ? w : make_widget(*controls[i + k]);
        box->setMaximumWidth(60);
        block->addWidget(box, static_cast<int>(k) / kSlotBlock, static_cast<int>(k) % kSlotBlock);
      }
      grid->addLayout(block, row++, 0, 1, 2);
      i += run - 1;
      continue;
    }
    if (c.kind() == ControlKind::Label && !c.text().empty()) {
      if (label_waiting[grid]) ++row;
      grid->addWidget(w, row, 0);
      label_waiting[grid] = true;
    } else {
      grid->addWidget(w, row++, 1);
      label_waiting[grid] = false;
    }
  }
  setWindowTitle(q(form.caption));
  refresh();
}

QWidget* FormWindow::make_widget(ui::Control& c) {
  QWidget* w = nullptr;
  switch (c.kind()) {
    case ControlKind::TextBox:
    case ControlKind::MaskedBox:
      w = new QLineEdit(this);
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
      watch(combo->lineEdit(), c);
      w = combo;
      break;
    }
    case ControlKind::ListBox:
      w = new QListWidget(this);
      break;
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
      auto* t = new QTableWidget(this);
      t->setEditTriggers(QAbstractItemView::NoEditTriggers);
      t->horizontalHeader()->hide();
      t->verticalHeader()->hide();
      connect(t, &QTableWidget::cellDoubleClicked, this, [this, &c](int r, int) {
        c.grid.row = r;
        desktop_.runtime().dbl_click(c);
        desktop_.sync();
      });
      w = t;
      break;
    }
    default:
      w = new QLabel(this);
      break;
  }
  w->setObjectName(q(c.name()));
  if (c.bold) {
    QFont font = w->font();
    font.setBold(true);
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
  auto it = widgets_.find(&control);
  return it == widgets_.end() ? nullptr : it->second;
}

void FormWindow::refresh() {
  setWindowTitle(q(form_.caption));
  for (const auto& [control, w] : widgets_) {
    const ui::Control& c = *control;
    w->setVisible(c.visible);
    w->setEnabled(c.enabled);
    if (auto* line = qobject_cast<QLineEdit*>(w)) {
      if (line->text() != q(c.text())) line->setText(q(c.text()));
      select(line, c);
      QPalette p = line->palette();
      p.setColor(QPalette::Base, colour(c.back_colour));
      line->setPalette(p);
    } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
      QStringList items;
      for (const auto& item : c.items) items << q(item);
      QStringList shown;
      for (int k = 0; k < combo->count(); ++k) shown << combo->itemText(k);
      if (shown != items) {
        combo->clear();
        combo->addItems(items);
      }
      if (combo->currentText() != q(c.text())) combo->setEditText(q(c.text()));
      select(combo->lineEdit(), c);
      QPalette p = combo->lineEdit()->palette();
      p.setColor(QPalette::Base, colour(c.back_colour));
      combo->lineEdit()->setPalette(p);
    } else if (auto* list = qobject_cast<QListWidget*>(w)) {
      list->clear();
      for (const auto& item : c.items) list->addItem(q(item));
      list->setCurrentRow(c.list_index);
    } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
      button->setText(q(c.text()));
      button->setChecked(c.checked());
    } else if (auto* table = qobject_cast<QTableWidget*>(w)) {
      const ui::GridCells& g = c.grid;
      table->setRowCount(g.rows);
      table->setColumnCount(g.cols);
      for (int r = 0; r < g.rows; ++r)
        for (int col = 0; col < g.cols; ++col) {
          auto* item = new QTableWidgetItem(q(g.cell(r, col)));
          item->setBackground(colour(g.colour.empty() ? ui::kWhite : g.colour[static_cast<size_t>(r * g.cols + col)]));
          if (r < g.fixed_rows) item->setFont([] { QFont f; f.setBold(true); return f; }());
          table->setItem(r, col, item);
        }
    } else if (auto* tabs = qobject_cast<QTabWidget*>(w)) {
      if (c.list_index >= 0 && tabs->currentIndex() != c.list_index) tabs->setCurrentIndex(c.list_index);
    } else if (auto* label = qobject_cast<QLabel*>(w)) {
      label->setText(q(c.text()));
    }
  }
}

bool FormWindow::forward_key(ui::Control& c, QKeyEvent* key) {
  ui::Runtime& rt = desktop_.runtime();
  if (rt.focused() != &c) rt.set_focus(c);
  if (int code = runtime_key(key->key())) {
    rt.press_key(code, key->key() == Qt::Key_Backtab || (key->modifiers() & Qt::ShiftModifier) ? 1 : 0);
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
      if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::MouseFocusReason ||
          reason == Qt::ShortcutFocusReason) {
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

void FormWindow::closeEvent(QCloseEvent* event) {
  // The window's close box unloads the screen, as the old forms did.
  event->ignore();
  desktop_.runtime().close(form_.name());
  desktop_.sync();
}

}  // namespace mz::desktop
