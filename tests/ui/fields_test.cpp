#include "ui/fields.h"

#include <gtest/gtest.h>

#include "core/format.h"
#include "core/text.h"
#include "ui/keys.h"
#include "ui/test_host.h"

namespace mz::ui {
namespace {

// A card with a money field whose leaving works the amount out into a label,
// and a field after it.
struct MoneyCard {
  TestHost host;
  Runtime rt{host};
  int worked_out = 0;
  MoneyCard() {
    rt.register_screen("CARTAO", [this](Runtime& r) {
      auto form = std::make_unique<Form>(r, "CARTAO", "Cartão");
      Control& value = form->add("Valor", ControlKind::TextBox);
      Form& f = *form;
      money_field(value, [this, &f] {
        ++worked_out;
        f["Dobro"].set_text(format(Value(Value(f["Valor"].text()).to_currency() * Currency::from_units(20000)),
                                   "###,##0.00"));
      });
      form->add("Outro", ControlKind::TextBox);
      form->add("Dobro", ControlKind::Label);
      return form;
    });
  }
  Form& open() {
    Form& form = rt.show("CARTAO");
    rt.set_focus(form["Valor"]);
    return form;
  }
  // Types into the emptied money field as the keyboard would, then Enter.
  Form& type_and_leave(const std::string& typed) {
    Form& form = open();
    form["Valor"].set_text("");
    for (char32_t c : to_u32(typed)) rt.type_char(c);
    rt.press_key(key::kEnter);
    return form;
  }
};

// A digit that would go past the largest amount is refused, once per digit,
// with the reason; what was typed before it stands and is worked out.
TEST(MoneyField, TypingStopsAtTheLargestAmount) {
  struct Case {
    const char* typed;
    const char* kept;     // the field's text after Enter
    size_t refused;       // digits refused, each with its message
    const char* doubled;  // what leaving worked out
  };
  const Case cases[] = {
      {"", "0,00", 0, "0,00"},
      {",", "0,00", 0, "0,00"},
      {"12,5", "12,5", 0, "25,00"},
      {"1.234,56", "1,23456", 0, "2,47"},  // "." is the decimal key too; the second is refused
      {"999999999999,99", "999999999999,99", 0, "1.999.999.999.999,98"},
      {"1000000000000", "100000000000", 1, "200.000.000.000,00"},
      {"999999999999,991", "999999999999,99", 1, "1.999.999.999.999,98"},
      {"99999999999999999999", "999999999999", 8, "1.999.999.999.998,00"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.typed);
    MoneyCard card;
    Form& form = card.type_and_leave(c.typed);
    EXPECT_EQ(form["Valor"].text(), c.kept);
    EXPECT_EQ(form["Dobro"].text(), c.doubled);
    EXPECT_EQ(card.rt.focused(), &form["Outro"]);
    EXPECT_EQ(card.worked_out, 1);
    ASSERT_EQ(card.host.messages.size(), c.refused);
    for (const auto& message : card.host.messages) {
      EXPECT_EQ(message.text, kMoneyTooLarge);
      EXPECT_FALSE(message.error) << "a clear message, not a runtime error";
    }
  }
}

// A digit typed over the selection is weighed against what it leaves, not
// against the text it replaces.
TEST(MoneyField, ADigitTypedOverTheLargestAmountReplacesIt) {
  MoneyCard card;
  Form& form = card.open();
  form["Valor"].set_text("999999999999");
  card.rt.set_focus(form["Outro"]);
  card.rt.set_focus(form["Valor"]);  // coming back selects the whole amount
  card.rt.type_char(U'5');
  EXPECT_EQ(form["Valor"].text(), "5");
  EXPECT_TRUE(card.host.messages.empty());
}

// An amount past the largest that did not come from the keyboard (a stored
// row) is said on leaving, kept with the focus to be mended, and nothing is
// worked out from it; mended, it leaves as any other.
TEST(MoneyField, LeavingAnAmountPastTheLargestKeepsItToBeMended) {
  for (const char* stored : {"1.000.000.000.000", "-1000000000000", "1E+20", "99999999999999999999"}) {
    SCOPED_TRACE(stored);
    MoneyCard card;
    Form& form = card.open();
    form["Valor"].set_text(stored);
    card.rt.press_key(key::kEnter);
    EXPECT_EQ(card.rt.focused(), &form["Valor"]);
    EXPECT_EQ(form["Valor"].text(), stored);
    EXPECT_EQ(form["Valor"].sel_length, len(stored)) << "selected, to be typed over";
    EXPECT_EQ(form["Dobro"].text(), "");
    EXPECT_EQ(card.worked_out, 0);
    ASSERT_EQ(card.host.messages.size(), 1u);
    EXPECT_EQ(card.host.messages[0].text, kMoneyTooLarge);

    for (char32_t c : to_u32("500,00")) card.rt.type_char(c);
    card.rt.press_key(key::kEnter);
    EXPECT_EQ(card.rt.focused(), &form["Outro"]);
    EXPECT_EQ(form["Dobro"].text(), "1.000,00");
    EXPECT_EQ(card.host.messages.size(), 1u);
  }
}

TEST(MoneyField, RangeEdges) {
  struct Case {
    const char* text;
    bool out;
  };
  const Case cases[] = {
      {"", false},           {"abc", false},
      {"999.999.999.999,99", false}, {"-999.999.999.999,99", false},
      {"1.000.000.000.000", true},   {"-1.000.000.000.000", true},
      {"1e30", true},
  };
  for (const Case& c : cases) EXPECT_EQ(money_out_of_range(c.text), c.out) << c.text;
}

}  // namespace
}  // namespace mz::ui
