#include "ui/runtime.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/input_helpers.h"
#include "core/text.h"
#include "ui/keys.h"
#include "ui/test_host.h"

namespace mz::ui {
namespace {

// A small entry screen: three fields, a date, a money field, a combo and two buttons.
std::unique_ptr<Form> entry_screen(Runtime& rt, std::vector<std::string>& events) {
  auto form = std::make_unique<Form>(rt, "FICHA", "Ficha");
  for (const char* name : {"A1", "A2"}) {
    Control& c = form->add(name, ControlKind::TextBox);
    c.on_got_focus = [&events, name] { events.push_back(std::string("got ") + name); };
    c.on_lost_focus = [&events, name] { events.push_back(std::string("lost ") + name); };
  }
  form->add("D", ControlKind::MaskedBox).leave_rule = LeaveRule::Date;
  Control& money = form->add("M", ControlKind::MaskedBox);
  money.leave_rule = LeaveRule::Money;
  money.on_key_press = [&money](int& key) { key = static_cast<int>(so_numero(money.text(), static_cast<char32_t>(key))); };
  form->add("C", ControlKind::ComboBox).items = {"CHEQUE", "CARTÃO", "DINHEIRO"};
  form->find("C")->on_key_press = [form = form.get()](int& key) { combo_inteligente((*form)["C"], key); };
  form->add("Rotulo", ControlKind::Label, "NOME:");
  form->add("Command1", ControlKind::Button, "Grava").on_click = [&rt] { rt.message("Gravado."); };
  form->add("Command2", ControlKind::Button, "Volta");
  form->key_preview = true;
  form->on_key_down = [&events](int& key, int) {
    if (key == key::kF1 + 1) {
      events.push_back("F2");
      key = 0;
    }
  };
  return form;
}

struct Fixture {
  TestHost host;
  Runtime rt{host};
  std::vector<std::string> events;
  Fixture() {
    rt.register_screen("FICHA", [this](Runtime& r) { return entry_screen(r, events); });
  }
  void type(const std::string& text) {
    for (char32_t c : to_u32(text)) rt.type_char(c);
  }
};

TEST(UiRuntime, FocusMovesWithColoursSelectionAndEventsInOrder) {
  Fixture f;
  Form& form = f.rt.show("ficha");
  EXPECT_EQ(f.rt.focused(), &form["A1"]);
  EXPECT_EQ(form["A1"].back_colour, kFocusColour);
  form["A2"].set_text("MARIA");
  f.rt.press_key(key::kEnter);
  EXPECT_EQ(f.rt.focused(), &form["A2"]);
  EXPECT_EQ(form["A1"].back_colour, kWhite);
  EXPECT_EQ(form["A2"].sel_length, 5u) << "the whole text is selected on focus";
  EXPECT_EQ(f.events, (std::vector<std::string>{"got A1", "lost A1", "got A2"}));
  f.type("Ana");
  EXPECT_EQ(form["A2"].text(), "Ana") << "typing replaces the selection";
  f.rt.message("Aviso");
  EXPECT_EQ(f.rt.focused(), &form["A2"]) << "a message box moves no focus";
  f.rt.press_key(key::kTab, 1);
  EXPECT_EQ(f.rt.focused(), &form["A1"]);
  f.rt.press_key(key::kF1 + 1);
  EXPECT_EQ(f.events.back(), "F2") << "the form sees F-keys first";
}

TEST(UiRuntime, EnterFromTheLastFieldReachesTheFirstButtonAndClicksIt) {
  Fixture f;
  Form& form = f.rt.show("FICHA");
  f.rt.set_focus(form["C"]);
  f.rt.press_key(key::kEnter);
  EXPECT_EQ(f.rt.focused(), &form["Command1"]) << "labels are passed over";
  f.rt.press_key(key::kEnter);
  ASSERT_EQ(f.host.messages.size(), 1u);
  EXPECT_EQ(f.host.messages[0].text, "Gravado.");
}

TEST(UiRuntime, DateAndMoneyFieldsAreNeverLeftInvalidOrEmpty) {
  struct Case {
    const char* field;
    const char* typed;
    const char* left_as;
  };
  const std::vector<Case> cases = {
      {"D", "31/02/2020", "22/11/2026"}, {"D", "", "22/11/2026"},    {"D", "29/02/2024", "29/02/2024"},
      {"M", "", "0,00"},                 {"M", "12,5", "12,5"},      {"M", "1,2,3", "1,23"},
      {"M", "1.5", "1,5"},               {"M", "a7b", "7"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.field) + " " + c.typed);
    Fixture f;
    Form& form = f.rt.show("FICHA");
    f.rt.set_focus(form[c.field]);
    f.type(c.typed);
    f.rt.press_key(key::kEnter);
    EXPECT_EQ(form[c.field].text(), c.left_as);
  }
}

TEST(UiRuntime, MaskedBoxesTakeOnlyWhatTheirMaskAllows) {
  struct Case {
    const char* mask;
    const char* typed;  // "<" is Backspace
    const char* text;
  };
  const std::vector<Case> cases = {
      {"##/##/####", "22112026", "22/11/2026"}, {"##/##/####", "2211", "22/11"},
      {"##/##/####", "22a/11", "22/11"},        {"##/##/####", "221120261", "22/11/2026"},
      {"##/##/####", "2211<<3", "22/3"},          {"(##) ####-####", "1155551234", "(11) 5555-1234"},
      {"##/##", "", ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.mask) + " " + c.typed);
    Fixture f;
    Form& form = f.rt.show("FICHA");
    form["D"].mask = c.mask;
    f.rt.set_focus(form["D"]);
    for (char ch : std::string(c.typed)) {
      if (ch == '<') f.rt.press_key(key::kBackspace);
      else f.rt.type_char(static_cast<char32_t>(ch));
    }
    EXPECT_EQ(form["D"].text(), c.text);
  }
}

TEST(UiRuntime, ComboCompletesFromItsList) {
  Fixture f;
  Form& form = f.rt.show("FICHA");
  f.rt.set_focus(form["C"]);
  f.type("ca");
  EXPECT_EQ(form["C"].text(), "CARTÃO");
  EXPECT_EQ(form["C"].sel_start, 2u);
  EXPECT_EQ(form["C"].sel_length, 4u);
  form["C"].items.clear();
  form["C"].set_text("");
  f.type("x");
  EXPECT_EQ(form["C"].text(), "x") << "an empty list leaves the typed letter alone";
}

TEST(UiRuntime, OneInstancePerScreenAndItsControlsLoadIt) {
  Fixture f;
  int loads = 0;
  f.rt.register_screen("SENHA2", [&loads](Runtime& r) {
    auto form = std::make_unique<Form>(r, "SENHA2", "Senha");
    form->add("NN", ControlKind::TextBox).visible = false;
    form->on_load = [&loads] { ++loads; };
    return form;
  });
  f.rt.screen("SENHA2")["NN"].set_text("A3");
  EXPECT_FALSE(f.rt.is_shown("SENHA2"));
  Form& shown = f.rt.show("senha2");
  EXPECT_EQ(shown["nn"].text(), "A3");
  EXPECT_EQ(loads, 1);
  f.rt.close("SENHA2");
  EXPECT_EQ(f.rt.screen("SENHA2")["NN"].text(), "") << "closing unloads the state";
  EXPECT_EQ(loads, 2);
}

TEST(UiRuntime, MenuItemsAnswerTheirFKey) {
  Fixture f;
  Form& form = f.rt.show("FICHA");
  Control& item = form.add("sdfsd", ControlKind::MenuItem, "Grava");
  item.shortcut = key::kF1 + 4;
  item.on_click = [&f] { f.events.push_back("Grava"); };
  f.rt.press_key(key::kF1 + 4);
  EXPECT_EQ(f.events.back(), "Grava");
  item.enabled = false;
  f.rt.press_key(key::kF1 + 4);
  EXPECT_EQ(std::count(f.events.begin(), f.events.end(), "Grava"), 1) << "a disabled item does nothing";
}

TEST(UiRuntime, OptionsExcludeEachOtherAndGridsBand) {
  Fixture f;
  Form form(f.rt, "MENU", "Menu");
  Control& one = form.add("Option1", ControlKind::OptionButton);
  Control& two = form.add("Option2", ControlKind::OptionButton);
  f.rt.click(one);
  f.rt.click(two);
  EXPECT_FALSE(one.checked());
  EXPECT_TRUE(two.checked());
  Control& grid = form.add("Grid1", ControlKind::Grid);
  grid.grid.resize(4, 2);
  zebra_grid(grid, 0, 0xE0E0E0);
  EXPECT_EQ(grid.grid.cell_colour(0, 0), kWhite) << "the heading is left alone";
  EXPECT_EQ(grid.grid.cell_colour(1, 1), 0xE0E0E0u);
  EXPECT_EQ(grid.grid.cell_colour(2, 0), kWhite);
  centra_form(form, 1024, 768);
  EXPECT_EQ(form.left, (1024 - form.width) / 2);
  EXPECT_EQ(form.top, (768 - form.height) / 2);
}

// The program's end unloads every open screen, the front one first, and
// a main screen whose Unload ends the program is not unloaded twice.
TEST(UiRuntime, EndingTheProgramClosesEveryOpenScreen) {
  TestHost host;
  Runtime rt{host};
  std::vector<std::string> unloaded;
  for (const char* name : {"MAIN", "MENU", "CARD"}) {
    rt.register_screen(name, [&unloaded, name](Runtime& r) {
      auto form = std::make_unique<Form>(r, name, name);
      form->add("A1", ControlKind::TextBox);
      form->on_unload = [&unloaded, &r, name] {
        unloaded.push_back(name);
        if (std::string(name) == "MAIN") r.end_program();
      };
      return form;
    });
  }
  rt.show("MAIN");
  rt.show("MENU");
  rt.show("CARD");
  rt.close("MAIN");  // closing the main screen, as its window's close box does
  EXPECT_EQ(unloaded, (std::vector<std::string>{"MAIN", "CARD", "MENU"}));
  for (const char* name : {"MAIN", "MENU", "CARD"}) EXPECT_FALSE(rt.is_shown(name)) << name;
  EXPECT_TRUE(host.ended);
  EXPECT_EQ(rt.focused(), nullptr);
}

TEST(UiRuntime, TheSpaceBarAndTheArrowsPressButtonsAndSetOptions) {
  TestHost host;
  Runtime rt{host};
  int clicks = 0;
  rt.register_screen("MENU", [&clicks](Runtime& r) {
    auto form = std::make_unique<Form>(r, "MENU", "Menu");
    form->add("Option1", ControlKind::OptionButton, "UM").group = "g";
    form->add("Option2", ControlKind::OptionButton, "DOIS").group = "g";
    form->add("Check1", ControlKind::CheckBox, "TRES");
    form->add("Command1", ControlKind::Button, "Avançar").on_click = [&clicks] { ++clicks; };
    return form;
  });
  Form& f = rt.show("MENU");
  rt.set_focus(f["Option2"]);
  rt.type_char(' ');
  EXPECT_TRUE(f["Option2"].checked());
  EXPECT_FALSE(f["Option1"].checked());
  rt.set_focus(f["Check1"]);
  rt.type_char(' ');
  EXPECT_TRUE(f["Check1"].checked());
  rt.type_char(' ');
  EXPECT_FALSE(f["Check1"].checked());
  rt.set_focus(f["Command1"]);
  rt.type_char(' ');
  EXPECT_EQ(clicks, 1);
  // The arrows go round the group, setting the option they reach.
  rt.set_focus(f["Option2"]);
  rt.press_key(key::kDown);
  EXPECT_EQ(rt.focused(), &f["Option1"]);
  EXPECT_TRUE(f["Option1"].checked());
  EXPECT_FALSE(f["Option2"].checked());
  rt.press_key(key::kUp);
  EXPECT_EQ(rt.focused(), &f["Option2"]);
  EXPECT_TRUE(f["Option2"].checked());
}

// A field that refuses its text keeps the focus from its LostFocus; the
// field the user was moving to never had the focus and loses nothing.
TEST(UiRuntime, AFieldThatKeepsTheFocusLeavesTheNextOneUntouched) {
  Fixture f;
  Form& form = f.rt.show("FICHA");
  form["A1"].on_lost_focus = [&] {
    f.events.push_back("lost A1");
    if (form["A1"].text() == "X") f.rt.set_focus(form["A1"]);
  };
  form["A1"].set_text("X");
  f.events.clear();
  f.rt.press_key(key::kTab);
  EXPECT_EQ(f.rt.focused(), &form["A1"]);
  EXPECT_EQ(f.events, (std::vector<std::string>{"lost A1", "got A1"}));
  EXPECT_EQ(form["A2"].back_colour, kWhite);
  form["A1"].set_text("Y");
  f.events.clear();
  f.rt.press_key(key::kTab);
  EXPECT_EQ(f.events, (std::vector<std::string>{"lost A1", "got A2"}));
}

// A notes box keeps Enter as a line break; Tab still leaves it.
TEST(UiRuntime, ANotesBoxTakesLineBreaksAndTabLeavesIt) {
  Fixture f;
  Form& form = f.rt.show("FICHA");
  form["A1"].multi_line = true;
  f.type("LINHA 1");
  f.rt.press_key(key::kEnter);
  f.type("LINHA 2");
  EXPECT_EQ(form["A1"].text(), "LINHA 1\nLINHA 2");
  EXPECT_EQ(f.rt.focused(), &form["A1"]);
  f.rt.press_key(key::kTab);
  EXPECT_EQ(f.rt.focused(), &form["A2"]);
}

}  // namespace
}  // namespace mz::ui
