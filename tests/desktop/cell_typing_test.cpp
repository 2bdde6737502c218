// Typing into a grid's cells on the desktop: ACERTOS overtypes an entry in
// place and the row of ENTRA follows when the cell is left; the sale's
// instalment grid takes its keys through its own handler and shows them.
// Help texts show under the pointer, on buttons and on menu entries.
#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QTest>
#include <QToolTip>

#include <fstream>
#include <sstream>

#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "desktop/grid_table.h"
#include "screen_helpers.h"
#include "shell/program.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/fields.h"
#include "ui/script_runner.h"

namespace mz::desktop {
namespace {

std::string stored(const char* column) {
  return store::Workspace::open_database("\\ENTRA.MDB")
      .open_recordset(std::string("select ") + column + " from ENTRA where CODIGO = '00000001'")[0]
      .text();
}

struct Acertos {
  testing::ScratchFolder folder;
  Desktop desktop{shell::program()};
  FormWindow* window = nullptr;
  ui::Form* form = nullptr;
  GridTable* table = nullptr;
  Acertos() {
    store::Workspace::open_database("\\ENTRA.MDB")
        .execute("Insert into ENTRA (CODIGO, NOME, REFERENCIA, X3, QTDA) values ('00000001', 'ACME', '0007', 10, 10)");
    window = show_active(desktop, "deve");
    form = &window->form();
    (*form)["EE3"].set_text("ACME");
    (*form)["GR"].set_text("0007");
    desktop.runtime().click((*form)["Command1"]);
    desktop.runtime().set_focus((*form)["DBGrid1"]);
    desktop.sync();
    table = dynamic_cast<GridTable*>(window->widget((*form)["DBGrid1"]));
  }
  bool keyboard_in_grid() const {
    return QTest::qWaitFor([&] { return QApplication::focusWidget() == table; }, 2000);
  }
  // Types into the current cell: the first key opens its editor, the others go to it.
  void type(const char* text) {
    QTest::keyClick(table, text[0]);
    for (const char* ch = text + 1; *ch; ++ch) QTest::keyClick(QApplication::focusWidget(), *ch);
  }
};

TEST(CellTyping, ACellTypedAndLeftGoesToItsRow) {
  Acertos a;
  ASSERT_NE(a.table, nullptr);
  ASSERT_EQ(a.table->rowCount(), 1);
  ASSERT_TRUE(a.keyboard_in_grid());
  a.table->setCurrentCell(0, 8);  // X3
  a.type("20");
  EXPECT_EQ(stored("X3"), "10") << "nothing is written while the cell is open";
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(stored("X3"), "20");
  EXPECT_EQ(a.table->item(0, 8)->text(), "20");
  EXPECT_EQ(stored("QTDA"), "10") << "only the cell left is written";
}

TEST(CellTyping, EscapeLeavesTheRowAsItWas) {
  Acertos a;
  ASSERT_TRUE(a.keyboard_in_grid());
  a.table->setCurrentCell(0, 8);
  a.type("55");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(stored("X3"), "10");
  EXPECT_EQ(a.table->item(0, 8)->text(), "10");
  EXPECT_TRUE(a.keyboard_in_grid()) << "the keyboard is back in the grid";
}

// The entry's number stays in sight as the sizes scroll; it names the row and takes no typing.
TEST(CellTyping, TheColumnThatNamesTheRowTakesNoTyping) {
  Acertos a;
  ASSERT_TRUE(a.keyboard_in_grid());
  a.table->setCurrentCell(0, 0);
  QTest::keyClick(a.table, '9');
  EXPECT_EQ(QApplication::focusWidget(), a.table) << "no editor opened";
  EXPECT_EQ(stored("CODIGO"), "00000001");
}

TEST(CellTyping, AGridWithoutEditableCellsTakesNoEditor) {
  Acertos a;
  ui::Control& grid = (*a.form)["DBGrid1"];
  EXPECT_TRUE(grid.editable_cells);
  EXPECT_TRUE(a.table->editable());
  FormWindow* balanco = show_active(a.desktop, "balanco");
  for (const auto& c : balanco->form().controls())
    if (auto* other = dynamic_cast<GridTable*>(balanco->widget(*c))) {
      SCOPED_TRACE(c->name());
      EXPECT_FALSE(other->editable());
      EXPECT_EQ(other->editTriggers(), QAbstractItemView::NoEditTriggers);
    }
}

// A script edits a cell only where the user could type: a grid that shows
// rows to pick from takes no typing, headless or not.
TEST(CellTyping, AScriptEditsOnlyCellsThatTakeTyping) {
  testing::TempFolder folder;
  const std::string path = (folder.path() / "grade.script").string();
  std::ofstream(path) << "open balanco\nedit Grid1 1 0 \"9\"\n";
  std::ostringstream out;
  EXPECT_EQ(ui::run_scripts({path}, shell::program(), out), 1);
  EXPECT_NE(out.str().find("grade.script:2: Grid1 takes no typing in its cells"), std::string::npos) << out.str();
}

// The instalments of a sale are typed through the grid's own handler:
// Backspace and characters change the current cell, Enter moves to the next.
TEST(CellTyping, TheInstalmentGridShowsItsOwnTyping) {
  testing::ScratchFolder folder;
  Desktop desktop{shell::program()};
  FormWindow* window = show_active(desktop, "VENDA");
  ui::Form& f = window->form();
  ui::Control& grid = f["Grid3"];
  std::vector<std::string> heading;
  for (int col = 0; col < grid.grid.cols; ++col) heading.push_back(grid.grid.cell(0, col));
  ui::show_rows(grid, heading, {{"1", "22/12/2026", "69,90", "CAIXA", "DINHEIRO"}});
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2);  // the closing tab, where the grid is
  desktop.runtime().set_focus(grid);
  desktop.sync();
  auto* table = dynamic_cast<GridTable*>(window->widget(grid));
  ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == table; }, 2000));
  grid.grid.col = 2;
  desktop.sync();
  QTest::keyClick(table, Qt::Key_Backspace);
  QTest::keyClick(table, Qt::Key_Backspace);
  QTest::keyClicks(table, "75");
  EXPECT_EQ(grid.grid.cell(1, 2), "69,75");
  EXPECT_EQ(table->item(0, 2)->text(), "69,75") << "the screen shows the typing";
  QTest::keyClick(table, Qt::Key_Return);
  EXPECT_EQ(table->currentColumn(), 3) << "Enter moved to the next cell, on the screen too";
  EXPECT_EQ(QApplication::focusWidget(), table);
}

// The help text of a button shows while the pointer rests on it.
TEST(HelpText, AButtonShowsItsUnderThePointer) {
  testing::ScratchFolder folder;
  Desktop desktop{shell::program()};
  for (auto [screen, button, help] : {std::tuple{"AUTO", "Command1", "Clique aqui para iniciar o backup."},
                                      std::tuple{"REPARA", "Command3", "Repara e Compacta."}}) {
    SCOPED_TRACE(screen);
    FormWindow* window = show_active(desktop, screen);
    QWidget* w = window->widget(window->form()[button]);
    ASSERT_NE(w, nullptr);
    const QPoint middle = w->rect().center();
    QHelpEvent hover(QEvent::ToolTip, middle, w->mapToGlobal(middle));
    QApplication::sendEvent(w, &hover);
    EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::isVisible(); }, 2000));
    EXPECT_EQ(QToolTip::text(), QString::fromUtf8(help));
    QToolTip::hideText();
    desktop.runtime().close(screen);
    desktop.sync();
  }
}

// A menu entry's help text shows as the pointer rests on it in the menu.
TEST(HelpText, AMenuEntryShowsItsInTheMenu) {
  testing::ScratchFolder folder;
  Desktop desktop{shell::program()};
  desktop.runtime().register_screen("AJUDA", [](ui::Runtime& rt) {
    auto form = std::make_unique<ui::Form>(rt, "AJUDA", "Ajuda");
    form->add("wewe", ui::ControlKind::MenuItem, "Busca").tooltip = " CLIQUE AQUI, PARA BUSCAR OS LANÇAMENTOS.";
    form->add("A1", ui::ControlKind::TextBox);
    return form;
  });
  FormWindow* window = show_active(desktop, "AJUDA");
  auto* menu = window->findChild<QMenu*>();
  ASSERT_NE(menu, nullptr);
  EXPECT_TRUE(menu->toolTipsVisible());
  ASSERT_EQ(menu->actions().size(), 1);
  EXPECT_EQ(menu->actions()[0]->toolTip(), QString::fromUtf8(" CLIQUE AQUI, PARA BUSCAR OS LANÇAMENTOS."));
}

}  // namespace
}  // namespace mz::desktop
