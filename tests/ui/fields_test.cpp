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
  // Types into the money field as the keyboard would, then Enter.
  Form& type_and_leave(const std::string& typed) {
    Form& form = rt.show("CARTAO");
    rt.set_focus(form["Valor"]);
    form["Valor"].set_text("");
    for (char32_t c : to_u32(typed)) rt.type_char(c);
    rt.press_key(key::kEnter);
    return form;
  }
};

TEST(MoneyField, LeavingKeepsAnAmountWithinRangeAndRefusesOneBeyond) {
  struct Case {
    const char* typed;
    const char* kept;      // the field's text after Enter
    bool moves_on;         // the focus left for the next field
    const char* doubled;   // what leaving worked out; "" when it did not run
  };
  const Case cases[] = {
      {"", "0,00", true, "0,00"},
      {",", "0,00", true, "0,00"},
      {"12,5", "12,5", true, "25,00"},
      {"1.234,56", "1,23456", true, "2,47"},  // "." is the decimal key too; the second is refused
      {"999999999999,99", "999999999999,99", true, "1.999.999.999.999,98"},
      {"1000000000000", "1000000000000", false, ""},
      {"999999999999,991", "999999999999,991", false, ""},
      {"922337203685477,58", "922337203685477,58", false, ""},
      {"99999999999999999999999", "99999999999999999999999", false, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.typed);
    MoneyCard card;
    Form& form = card.type_and_leave(c.typed);
    EXPECT_EQ(form["Valor"].text(), c.kept);
    EXPECT_EQ(form["Dobro"].text(), c.doubled);
    EXPECT_EQ(card.rt.focused(), c.moves_on ? &form["Outro"] : &form["Valor"]);
    if (c.moves_on) {
      EXPECT_TRUE(card.host.messages.empty());
      EXPECT_EQ(card.worked_out, 1);
    } else {
      ASSERT_EQ(card.host.messages.size(), 1u);
      EXPECT_EQ(card.host.messages[0].text, kMoneyTooLarge);
      EXPECT_FALSE(card.host.messages[0].error) << "a clear message, not a runtime error";
      EXPECT_EQ(card.worked_out, 0);
      EXPECT_EQ(form["Valor"].sel_length, len(form["Valor"].text())) << "the amount is selected to be typed over";
    }
  }
}

// Mended, the amount leaves the field as any other does.
TEST(MoneyField, AMendedAmountMovesOn) {
  MoneyCard card;
  Form& form = card.type_and_leave("5000000000000");
  ASSERT_EQ(card.rt.focused(), &form["Valor"]);
  for (char32_t c : to_u32("500,00")) card.rt.type_char(c);
  card.rt.press_key(key::kEnter);
  EXPECT_EQ(card.rt.focused(), &form["Outro"]);
  EXPECT_EQ(form["Dobro"].text(), "1.000,00");
  EXPECT_EQ(card.host.messages.size(), 1u);
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
