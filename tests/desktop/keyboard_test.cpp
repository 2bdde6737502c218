// The clerk's keyboard on the desktop: the F-keys reach the screen from every
// kind of field, and the arrows choose in lists and combos.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "screen_helpers.h"
#include "shell/program.h"
#include "support/scratch_folder.h"

namespace mz::desktop {
namespace {

// The clerk's F-keys work wherever the keyboard is: a text box, a combo, a
// size box, a money field, the grid.
TEST(FunctionKeys, ReachTheScreenFromEveryKindOfField) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  FormWindow* window = show_active(desktop, "ENTRADA");
  ui::Form& form = window->form();
  for (const char* name : {"GR", "E2", "X7", "ET", "TT", "Grid1", "EE4"}) {
    SCOPED_TRACE(name);
    form["EE3"].set_text("CONFECÇÕES SÃO JOÃO");
    desktop.runtime().set_focus(form[name]);
    desktop.sync();
    QWidget* field = window->widget(form[name]);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == field; }, 2000));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);  // "F3 Limpa"
    EXPECT_EQ(form["EE3"].text(), "");
    EXPECT_EQ(desktop.runtime().focused(), &form["EE5"]) << "Limpa puts the focus on REALIZAR";
  }
}

// The arrows choose in a list and in a combo, as the runtime then sees.
TEST(Keyboard, ArrowsChooseInListsAndCombos) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  ui::Form& form = show_active(desktop, "BUSCON")->form();
  ui::Control& kind = form["A26"];
  press_in(desktop, kind, Qt::Key_Down);
  EXPECT_EQ(kind.list_index, 1);
  EXPECT_EQ(kind.text(), "CONTAS A RECEBER");
  press_in(desktop, kind, Qt::Key_Up);
  EXPECT_EQ(kind.text(), "CONTAS A PAGAR");

  ui::Control& order = form["Combo1"];
  ASSERT_GE(order.items.size(), 2u);
  press_in(desktop, order, Qt::Key_Down);
  EXPECT_EQ(order.text(), order.items[0]) << "from no choice, Down takes the first";
  press_in(desktop, order, Qt::Key_Down);
  EXPECT_EQ(order.text(), order.items[1]);
}

// Typing an item's text and leaving is no choice from the list: the screen's
// click comes only from the list or the arrows.
TEST(Keyboard, LeavingACombosTypedItemIsNoClick) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  int clicks = 0;
  desktop.runtime().register_screen("ESCOLHA", [&clicks](ui::Runtime& rt) {
    auto form = std::make_unique<ui::Form>(rt, "ESCOLHA", "Escolha");
    ui::Control& combo = form->add("Combo1", ui::ControlKind::ComboBox);
    combo.items = {"CRÉDITO", "DÉBITO"};
    combo.on_click = [&clicks] { ++clicks; };
    form->add("Text1", ui::ControlKind::TextBox);
    return form;
  });
  ui::Form& form = show_active(desktop, "ESCOLHA")->form();
  desktop.runtime().set_focus(form["Combo1"]);
  desktop.sync();
  QTest::keyClicks(QApplication::focusWidget(), "DÉBITO");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(desktop.runtime().focused(), &form["Text1"]);
  EXPECT_EQ(clicks, 0);
  press_in(desktop, form["Combo1"], Qt::Key_Down);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(form["Combo1"].text(), "CRÉDITO");
}

}  // namespace
}  // namespace mz::desktop
