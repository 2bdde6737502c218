// Wide grids and large screens on the desktop: the first column stays in
// sight as a grid scrolls sideways, every large screen fits a 1366x768
// display, and a field's own buttons stand beside it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "desktop/grid_table.h"
#include "desktop/page_layout.h"
#include "shell/program.h"
#include "support/scratch_folder.h"
#include "screen_helpers.h"

namespace mz::desktop {
namespace {

constexpr int kWideColumns = 55;

// A grid like the stock movement's: a heading row, a fixed reference column
// and many narrow ones.
// A click or a double click records the reference of the row it chose in `chosen`.
void register_wide_grid(ui::Runtime& rt, int fixed_cols, std::string* chosen = nullptr) {
  rt.register_screen("LARGA", [fixed_cols, chosen](ui::Runtime& runtime) {
    auto form = std::make_unique<ui::Form>(runtime, "LARGA", "Larga");
    ui::Control& grid = form->add("Grid1", ui::ControlKind::Grid);
    ui::GridCells& g = grid.grid;
    g.fixed_cols = fixed_cols;
    g.resize(4, kWideColumns);
    g.cell(0, 0) = "Referência";
    for (int col = 1; col < kWideColumns; ++col) g.cell(0, col) = "T" + std::to_string(col);
    for (int r = 1; r < 4; ++r) {
      g.cell(r, 0) = "000" + std::to_string(r);
      for (int col = 1; col < kWideColumns; ++col) g.cell(r, col) = std::to_string(r * col);
    }
    grid.on_dbl_click = [&grid, chosen] {
      if (chosen) *chosen = grid.grid.cell(grid.grid.row, 0);
    };
    grid.on_click = [&grid, chosen] {
      if (chosen) *chosen = "click " + grid.grid.cell(grid.grid.row, 0);
    };
    return form;
  });
}

struct ShownGrid {
  ui::Control* control;
  GridTable* table;
};

ShownGrid show_wide_grid(Desktop& desktop) {
  ui::Form& form = desktop.runtime().show("LARGA");
  desktop.sync();
  FormWindow* window = desktop.window(form);
  window->showNormal();
  window->resize(480, 260);
  window->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
  auto* table = dynamic_cast<GridTable*>(window->widget(form["Grid1"]));
  return {&form["Grid1"], table};
}

// Both a flex grid that declares its fixed column and one that declares
// none keep their first column while scrolling right.
class FrozenColumn : public ::testing::TestWithParam<int> {};

TEST_P(FrozenColumn, ScrollingRightKeepsTheFirstColumnInSight) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  std::string chosen;
  register_wide_grid(desktop.runtime(), GetParam(), &chosen);
  ShownGrid shown = show_wide_grid(desktop);
  ASSERT_NE(shown.table, nullptr);
  GridTable& table = *shown.table;
  EXPECT_EQ(table.horizontalHeaderItem(0)->text(), "Referência") << "the heading row heads the columns";
  EXPECT_EQ(table.rowCount(), 3) << "only the data rows are rows of the table";

  table.horizontalScrollBar()->setValue(table.horizontalScrollBar()->maximum());
  QApplication::processEvents();
  ASSERT_GT(table.horizontalScrollBar()->value(), 0) << "the grid is wider than its window";
  EXPECT_LT(table.columnViewportPosition(0), 0) << "the grid itself scrolled its first column away";

  QTableView* frozen = table.frozen_view();
  ASSERT_TRUE(frozen->isVisible());
  EXPECT_FALSE(frozen->isColumnHidden(0));
  EXPECT_TRUE(frozen->isColumnHidden(1));
  EXPECT_EQ(frozen->columnViewportPosition(0), 0);
  EXPECT_EQ(frozen->width(), table.columnWidth(0));
  const QPoint corner = frozen->mapTo(&table, QPoint(0, 0));
  EXPECT_EQ(corner.x(), table.frameWidth()) << "over the left edge of the grid";
  EXPECT_EQ(frozen->model()->index(2, 0).data().toString(), "0003");

  // A click and a double click on a frozen cell are the grid's, on its row, heading counted.
  const QModelIndex cell = frozen->model()->index(1, 0);
  const QPoint at = frozen->visualRect(cell).center();
  QTest::mouseClick(frozen->viewport(), Qt::LeftButton, {}, at);  // a double click starts as a click
  EXPECT_EQ(chosen, "click 0002");
  QTest::mouseDClick(frozen->viewport(), Qt::LeftButton, {}, at);
  EXPECT_EQ(shown.control->grid.row, 2);
  EXPECT_EQ(chosen, "0002");
}

INSTANTIATE_TEST_SUITE_P(Grids, FrozenColumn, ::testing::Values(0, 1));

TEST(FrozenColumn, StepsSidewaysAColumnAtATimeWithNoneCutUnderIt) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  register_wide_grid(desktop.runtime(), 1);
  GridTable& table = *show_wide_grid(desktop).table;
  QScrollBar& bar = *table.horizontalScrollBar();
  const int first_width = table.columnWidth(0);
  for (int step = 0; step < 3; ++step) {
    bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    QApplication::processEvents();
    if (bar.value() == bar.maximum()) break;
    // The column beside the frozen one starts right at its edge.
    const int beside = table.columnAt(first_width);
    EXPECT_EQ(table.columnViewportPosition(beside), first_width) << "step " << step;
  }
  bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
  QApplication::processEvents();
  EXPECT_EQ(table.columnViewportPosition(table.columnAt(first_width)), first_width);
}

// On a 1366x768 display the stock movement screen shows every control
// whole, and its grid takes the height the fields leave.
TEST(LargeScreens, StockMovementFitsTheDisplayWithRoomForItsGrid) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  ui::Form& form = desktop.runtime().show("ENTRADA");
  desktop.sync();
  FormWindow* window = desktop.window(form);
  window->showNormal();
  const QSize client(1366, 768 - 30);  // less the title bar
  EXPECT_LE(window->minimumSizeHint().height(), client.height());
  window->resize(client);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
  QApplication::processEvents();
  EXPECT_EQ(window->size(), client);
  for (const auto& control : form.controls()) {
    QWidget* w = window->widget(*control);
    if (!w || !w->isVisible() || control->kind() == ui::ControlKind::MenuItem) continue;
    const QRect box(w->mapTo(window, QPoint(0, 0)), w->size());
    EXPECT_TRUE(window->rect().contains(box)) << control->name() << " lies outside the window";
  }
  QWidget* grid = window->widget(form["Grid1"]);
  EXPECT_GE(grid->height(), 250) << "the grid shows ten lines of a document";
  QWidget* band_box = window->widget(form["X50"]);
  QWidget* caption = window->widget(form["A50"]);
  EXPECT_LT(caption->mapTo(window, QPoint(0, 0)).y(), band_box->mapTo(window, QPoint(0, 0)).y())
      << "a size's caption stands over its box";
  EXPECT_NEAR(caption->mapTo(window, caption->rect().center()).x(),
              band_box->mapTo(window, band_box->rect().center()).x(), 2)
      << "centred over it";
}

// Every large screen, drawn on the display the shop has, needs no more
// room than it offers: nothing is cut at the window's edge.
TEST(LargeScreens, EachFitsTheDisplay) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  for (const char* name : {"ENTRADA", "CONSULTA", "CAIXA", "BUSCAIXA", "Contas", "bxx", "BUSCON", "CONBX", "CONCLIE",
                           "PRODUTO", "Cadastro", "FORNE", "ETI", "PEDIDO", "balanco", "deve", "GRUPOS", "IMPEREFE",
                           "AUTO", "REPARA", "TELEFONE", "fone", "Impe", "NAS", "vendaimpre"}) {
    SCOPED_TRACE(name);
    ui::Form& form = desktop.runtime().show(name);
    desktop.sync();
    FormWindow* window = desktop.window(form);
    ASSERT_NE(window, nullptr);
    const QSize least = window->minimumSizeHint();
    EXPECT_LE(least.width(), 1366);
    EXPECT_LE(least.height(), 768 - 30);
    desktop.runtime().close(name);
    desktop.sync();
  }
}

// "< Busca" after a field searches by that field: it stands beside it, while
// the buttons that end the screen stay in the bar at its foot.
TEST(Layout, AFieldsOwnButtonsStandBesideIt) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  FormWindow* window = show_active(desktop, "BUSCON");
  ui::Form& form = window->form();
  for (auto [field, button] : {std::pair{"Combo1", "Command1"}, {"Text1", "Command2"}, {"Text2", "Command3"}}) {
    SCOPED_TRACE(button);
    QWidget* row = window->widget(form[field])->parentWidget();
    EXPECT_NE(row, window);
    EXPECT_EQ(window->widget(form[button])->parentWidget(), row);
  }
  EXPECT_EQ(window->widget(form["Volta"])->parentWidget(), window);
}

// A row of many buttons after a field (a price table's halves, each with
// its print and sheet) stands under the field, which keeps its width.
TEST(Layout, ManyButtonsOfAFieldStandUnderIt) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  FormWindow* window = show_active(desktop, "GRUPOS");
  ui::Form& form = window->form();
  QWidget* field = window->widget(form["E1"]);
  QWidget* first = window->widget(form["Command1"]);
  EXPECT_EQ(first->parentWidget(), field->parentWidget()) << "they stay with their field";
  EXPECT_GE(first->mapTo(window, QPoint()).y(), field->mapTo(window, QPoint(0, field->height())).y());
  EXPECT_GE(field->width(), kFieldWidthInRows);
  EXPECT_LE(window->minimumSizeHint().width(), 1024) << "a smaller display still shows the row whole";
}

// A field with no caption of its own (the phone book's second line of a
// birthday and of a phone) lines up with the captioned fields above it.
TEST(Layout, AFieldWithoutCaptionLinesUpWithTheFields) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  FormWindow* window = show_active(desktop, "TELEFONE");
  ui::Form& form = window->form();
  form["SSTab1"].list_index = 1;
  desktop.sync();
  auto left = [&](const char* name) { return window->widget(form[name])->mapTo(window, QPoint()).x(); };
  EXPECT_EQ(left("A4"), left("A3"));
  EXPECT_EQ(left("A7"), left("A6"));
}

}  // namespace
}  // namespace mz::desktop
