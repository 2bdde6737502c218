// The counter sale as the clerk meets it on the desktop: the keyboard is in
// the code at once, the scanner's code and Enter land a line and come back,
// the F-keys move between the tabs with the keyboard, and an amount typed
// too large is refused with a message and nothing lost.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include "core/error.h"
#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "screen_helpers.h"
#include "shell/program.h"
#include "store/database.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/fields.h"

namespace mz::desktop {
namespace {

// The texts of the message boxes the user read and closed.
struct MessageReader {
  std::vector<std::string> read;
  QTimer timer;
  MessageReader() {
    QObject::connect(&timer, &QTimer::timeout, [this] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        read.push_back(box->text().toStdString());
        box->accept();
      }
    });
    timer.start(20);
  }
};

struct Counter {
  testing::ScratchFolder folder;
  Desktop desktop{shell::program()};
  FormWindow* window = nullptr;
  ui::Form* form = nullptr;
  Counter() {
    store::Workspace::open_database("\\REFE.Mdb")
        .execute("Insert into GRUPO (GR, E2, E9, E11, A1) values ('0007', 'CAMISA POLO', '59,90', '69,90', 'SIM')");
    window = show_active(desktop, "VENDA");
    form = &window->form();
  }
  QWidget* widget(const char* name) const { return window->widget((*form)[name]); }
  bool keyboard_in(const char* name) const {
    return QTest::qWaitFor([&] { return QApplication::focusWidget() == widget(name); }, 2000);
  }
  void scan(const char* code) {
    QTest::keyClicks(QApplication::focusWidget(), code);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  }
  int tab_shown() const { return window->findChild<QTabWidget*>("SSTab1")->currentIndex(); }
};

TEST(CounterSale, TheScannerLandsLinesAndTheFunctionKeysMoveTheKeyboard) {
  Counter c;
  ASSERT_TRUE(c.keyboard_in("GR")) << "the clerk scans as soon as the screen shows";
  EXPECT_EQ(c.desktop.runtime().focused(), &(*c.form)["GR"]);

  for (int line = 1; line <= 2; ++line) {
    SCOPED_TRACE(line);
    c.scan("000701");
    EXPECT_EQ((*c.form)["Grid1"].grid.rows, line + 1) << "a line per scan, never merged";
    EXPECT_TRUE(c.keyboard_in("GR")) << "back in the code for the next item";
    EXPECT_EQ((*c.form)["GR"].text(), "");
  }
  EXPECT_EQ((*c.form)["TL"].text(), "139,80");
  EXPECT_EQ(static_cast<QLabel*>(c.widget("TL"))->text(), "139,80") << "the total on the screen follows the lines";
  EXPECT_GE(c.widget("TL")->font().pointSizeF(), 2 * c.widget("E2")->font().pointSizeF())
      << "the total reads across the counter";
  // The description takes the room left: the line values stand at the right edge.
  auto* lines = static_cast<QTableWidget*>(c.widget("Grid1"));
  int used = 0;
  for (int col = 0; col < lines->columnCount(); ++col) used += lines->columnWidth(col);
  EXPECT_EQ(used, lines->viewport()->width());
  EXPECT_GT(lines->columnWidth(1), lines->columnWidth(4));

  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2);
  EXPECT_EQ(c.tab_shown(), 1);
  EXPECT_TRUE(c.keyboard_in("W2")) << "the closing tab takes the keyboard in the discount";
  QTest::keyClicks(QApplication::focusWidget(), "10");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ((*c.form)["W3"].text(), "125,82");

  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
  EXPECT_EQ(c.tab_shown(), 0);
  EXPECT_TRUE(c.keyboard_in("GR")) << "and the items tab in the code";
}

// A code that is not a product, and a quantity that is no number, add nothing.
TEST(CounterSale, InputThatIsNoItemAddsNothing) {
  Counter c;
  ASSERT_TRUE(c.keyboard_in("GR"));
  c.scan("999901");
  EXPECT_EQ((*c.form)["Grid1"].grid.rows, 1);
  EXPECT_EQ((*c.form)["GR"].text(), "") << "an unknown reference is only emptied";
  (*c.form)["E7"].set_text("");  // blanked: the clerk stops at the quantity
  press_in(c.desktop, (*c.form)["GR"], Qt::Key_0);
  c.scan("00701");
  ASSERT_TRUE(c.keyboard_in("E7"));
  QTest::keyClicks(QApplication::focusWidget(), "dois");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ((*c.form)["Grid1"].grid.rows, 1);
  EXPECT_EQ((*c.form)["TL"].text(), "0,00");
  EXPECT_TRUE(c.window->isVisible());
}

// Amount paid typed far past any sale: the digit too many is refused with a
// message, the keyboard stays in the field, and the amount before it counts.
TEST(CounterSale, AnAmountPaidPastTheLargestIsRefused) {
  MessageReader reader;
  Counter c;
  ASSERT_TRUE(c.keyboard_in("GR"));
  c.scan("000701");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2);
  ASSERT_TRUE(c.keyboard_in("W2"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  ASSERT_TRUE(c.keyboard_in("W4"));
  QTest::keyClicks(QApplication::focusWidget(), "9999999999999");
  EXPECT_EQ(reader.read, std::vector<std::string>{ui::kMoneyTooLarge});
  EXPECT_EQ((*c.form)["W4"].text(), "999999999999");
  ASSERT_TRUE(c.keyboard_in("W4"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ((*c.form)["W5"].text(), "999.999.999.929,10") << "the change on a sale of 69,90";
  EXPECT_EQ(reader.read.size(), 1u);
}

// A failure no screen traps is shown as the old runtime's error and the
// program goes on.
TEST(CounterSale, AnUntrappedFailureIsShownAndTheScreenStays) {
  MessageReader reader;
  Counter c;
  auto* app = static_cast<ShopApplication*>(QApplication::instance());
  app->desktop = &c.desktop;
  (*c.form)["Command9"].on_click = [] { throw Error(err::kOverflow, "Overflow"); };
  QTest::mouseClick(c.window->findChild<QWidget*>("Command9"), Qt::LeftButton);
  app->desktop = nullptr;
  EXPECT_EQ(reader.read, std::vector<std::string>{"Erro 6: Overflow"});
  EXPECT_TRUE(c.window->isVisible());
}

}  // namespace
}  // namespace mz::desktop
