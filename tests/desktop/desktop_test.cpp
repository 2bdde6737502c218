// The Qt front end under the offscreen platform: every screen opens, typing
// reaches the runtime, Enter moves the focus.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTabWidget>
#include <QTimer>
#include <QTest>
#include <set>

#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "shell/program.h"
#include "support/scratch_folder.h"

namespace mz::desktop {
namespace {

// Accented letters come as text with no key code, as a keyboard layout sends them.
void type_accented(QWidget* widget, const QString& text) {
  for (QChar ch : text) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(ch));
    QApplication::sendEvent(widget, &press);
  }
}

const char* const kScreens[] = {"INICIO", "ini2",  "opera1", "OPERA2", "OPERA", "MENUDP", "SENHA2", "SENHA",
                                "GRADE",  "EMPRE", "lay",    "CADSENHA", "msn", "VENDA", "RECIBO", "BUSRECI",
                                "NP",     "DUPLI", "BUDP", "PRODUTO", "FrmImg", "FORNECOD", "Cadastro", "SALACAD",
                                "c2",     "FORNE", "ENTRADA", "CONSULTA", "PSEST", "ETI", "CAIXA", "BUSCAIXA",
                                "ABRECX", "FECHACX", "Contas", "bxx", "BUSCON", "CONBX", "CONCLIE", "AUTO",
                                "REPARA", "TELEFONE", "fone", "Impe", "NAS", "vendaimpre", "PEDIDO", "balanco",
                                "deve", "GRUPOS", "IMPEREFE", "BNOME", "fotos", "troca", "BUSVENDA",
                                "Prod", "Impecon", "IMPECON2", "IMPECON4"};
// Screens whose first field is a number, a date or an amount: they refuse
// letters, so only the barcode reader's digits are typed there.
bool takes_digits_only(const std::string& name) {
  static const std::set<std::string> kDigitsFirst = {"RECIBO", "BUSRECI",  "NP",     "DUPLI",   "BUDP",
                                                      "SALACAD", "CAIXA",   "BUSCAIXA", "ABRECX", "FECHACX",
                                                      "BUSCON",  "CONBX",   "REPARA",   "NAS",    "PEDIDO",
                                                      "BUSVENDA", "Prod",    "IMPECON2"};
  return kDigitsFirst.count(name) > 0;
}

TEST(Desktop, EveryScreenTakesTypingAndEnterMovesOn) {
  testing::ScratchFolder folder;
  // A screen may answer with a message box (a wrong password): the user reads it and presses OK.
  QTimer closer;
  QObject::connect(&closer, &QTimer::timeout, [] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->accept();
  });
  closer.start(20);
  Desktop desktop(shell::program());
  desktop.start();
  ASSERT_NE(desktop.window(desktop.runtime().screen("INICIO")), nullptr) << "the main screen came up";
  for (const char* name : kScreens) {
    SCOPED_TRACE(name);
    desktop.runtime().show(name);
    desktop.sync();
    if (!desktop.runtime().is_shown(name)) continue;  // the entry gate lets an empty password straight through
    ui::Form& form = desktop.runtime().screen(name);
    FormWindow* window = desktop.window(form);
    ASSERT_NE(window, nullptr);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    ui::Control* field = nullptr;
    for (const auto& c : form.controls())
      if (c->is_entry() && c->can_take_focus()) {
        field = c.get();
        break;
      }
    if (!field) continue;  // menus and notices: opening them is the test
    desktop.runtime().set_focus(*field);
    desktop.sync();
    QWidget* widget = window->widget(*field);
    ASSERT_NE(widget, nullptr);
    // A list that drops down as it takes the focus is closed first: the clerk types past it.
    if (auto* combo = qobject_cast<QComboBox*>(widget); combo && field->on_got_focus) {
      QTest::qWait(20);
      combo->hidePopup();
    }
    if (takes_digits_only(name)) {
      field->set_text("");
      QTest::keyClicks(widget, "0007");
      std::string digits;
      for (char c : field->text())
        if (c >= '0' && c <= '9') digits += c;
      EXPECT_EQ(digits, "0007") << "the runtime saw the digits, a date mask around them: " << field->text();
    } else {
      type_accented(widget, "Çé");
      QTest::keyClicks(widget, "000701");  // a barcode reader types digits
      EXPECT_EQ(field->text(), "Çé000701") << "the runtime saw the text";
    }
    QTest::keyClick(widget, Qt::Key_Return);
    EXPECT_NE(desktop.runtime().focused(), field) << "Enter moved the focus";
    QWidget* moved_to = window->widget(*desktop.runtime().focused());
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == moved_to; }, 2000))
        << "the keyboard focus followed the runtime";
  }
}

TEST(Desktop, TabsCarryTheirPagesAndFollowTheRuntime) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  desktop.runtime().register_screen("ABAS", [](ui::Runtime& rt) {
    auto form = std::make_unique<ui::Form>(rt, "ABAS", "Abas");
    ui::Control& tabs = form->add("SSTab1", ui::ControlKind::Tabs);
    tabs.items = {"01- Itens", "04- Fechamento"};
    tabs.list_index = 0;
    form->add("GR", ui::ControlKind::TextBox);
    form->add("W2", ui::ControlKind::TextBox).page = 1;
    return form;
  });
  ui::Form& form = desktop.runtime().show("ABAS");
  desktop.sync();
  FormWindow* window = desktop.window(form);
  auto* tabs = window->findChild<QTabWidget*>("SSTab1");
  ASSERT_NE(tabs, nullptr);
  EXPECT_EQ(tabs->count(), 2);
  EXPECT_TRUE(tabs->widget(1)->isAncestorOf(window->widget(form["W2"])));
  EXPECT_TRUE(tabs->widget(0)->isAncestorOf(window->widget(form["GR"])));
  form["SSTab1"].list_index = 1;
  desktop.sync();
  EXPECT_EQ(tabs->currentIndex(), 1);
}

// The clerk never clicks a window to type in it: the main screen answers its
// F-keys at once, and a screen opened from a menu has the keyboard in its
// first field.
TEST(Desktop, ScreensOpenedFromTheMenusTakeTheKeyboard) {
  testing::ScratchFolder folder;
  Desktop desktop(shell::program());
  desktop.start();
  FormWindow* main = desktop.window(desktop.runtime().screen("INICIO"));
  ASSERT_NE(main, nullptr);
  ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == main; }, 2000));
  QTest::keyClick(QApplication::activeWindow(), Qt::Key_F1);
  ASSERT_TRUE(desktop.runtime().is_shown("opera1"));
  FormWindow* menu = desktop.window(desktop.runtime().screen("opera1"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == menu; }, 2000));
  // The first option has the focus: Space sets it, Tab leaves the group, Enter goes ahead.
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  ASSERT_TRUE(desktop.runtime().is_shown("GRADE"));
  ui::Form& grade = desktop.runtime().screen("GRADE");
  FormWindow* window = desktop.window(grade);
  ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == window->widget(grade["A1"]); }, 2000));
  QTest::keyClicks(QApplication::focusWidget(), "PP1");
  EXPECT_EQ(grade["A1"].text(), "PP1");
}

}  // namespace
}  // namespace mz::desktop

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  mz::desktop::ShopApplication app(argc, argv);  // traps only while a test gives it a desktop
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
