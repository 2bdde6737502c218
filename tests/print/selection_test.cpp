#include "print/selection.h"

#include <gtest/gtest.h>

#include <map>

#include "core/error.h"
#include "store/sql_text.h"

namespace mz::print {
namespace {

TEST(PrintSelection, FormulasTheScreensCompose) {
  std::map<std::string, Value> row = {{"codigo", Value("00012")},
                                      {"nome", Value("Confecções Alfa")},
                                      {"r4", Value(Date::from_ymd(2026, 11, 5))}};
  auto field = [&](const std::string& column) { return row.count(column) ? row[column] : Value::null(); };
  struct Case {
    std::string formula;
    bool selected;
  };
  const std::vector<Case> cases = {
      {"", true},
      {"{RECI.CODIGO} = '00012'", true},
      {"{RECI.CODIGO} = '00013'", false},
      {"{entra.nome} = 'CONFECÇÕES ALFA'", true},
      {"{entra.nome} = 'CONFECCOES ALFA'", false},
      {"{reci.r4} >= Date ( 2026,11,1) and  {reci.r4} <= Date ( 2026,11,30)", true},
      {"{reci.r4} >= Date ( 2026,11,6) and  {reci.r4} <= Date ( 2026,11,30)", false},
      {"{reci.r4} >= Date ( 2026,11,5) and  {reci.r4} <= Date ( 2026,11,5)", true},
      {"{grupo.e1} = ''", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.formula);
    EXPECT_EQ(Selection::parse(c.formula).matches(field), c.selected);
  }
}

// The screens put a name in as it stands: its apostrophes belong to the value.
TEST(PrintSelection, AnApostropheInsideAValueIsPartOfIt) {
  struct Case {
    std::string formula, value;
  };
  const std::vector<Case> cases = {
      {"{entra.nome} = 'SANT'ANA CALÇADOS'", "SANT'ANA CALÇADOS"},
      {"{CADA.A1} = 'D'ÁVILA'  ", "D'ÁVILA"},
      {"{CADA.A1} = 'ROCK 'N' ROLL'", "ROCK 'N' ROLL"},
      {"{CADA.A1} = 'O'ANDRADE'", "O'ANDRADE"},
      {"{CADA.A1} = ''''", "''"},
      {"{CADA.A1} = 'D'ÁVILA' and {CADA.A2} = 'X'", "D'ÁVILA"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.formula);
    Selection s = Selection::parse(c.formula);
    ASSERT_FALSE(s.conditions().empty());
    EXPECT_EQ(s.conditions()[0].value.text(), c.value);
  }
  Selection two = Selection::parse("{CADA.A1} = 'D'ÁVILA' and {CADA.A2} = 'O'NEIL'");
  ASSERT_EQ(two.conditions().size(), 2u);
  EXPECT_EQ(two.conditions()[1].column, "a2");
  EXPECT_EQ(two.conditions()[1].value.text(), "O'NEIL");
  std::map<std::string, Value> row = {{"a1", Value("d'ávila")}, {"a2", Value("O'NEIL")}};
  auto field = [&](const std::string& column) { return row.count(column) ? row[column] : Value::null(); };
  EXPECT_TRUE(two.matches(field));
}

TEST(PrintSelection, MalformedFormulasAreError3075) {
  for (const char* bad : {"{CADA.A1} = 'aberto", "{CADA.A1} = 'D'ÁVILA", "{reci.r4} >= Date (2026,2,30)",
                          "{CADA.A1} like 'X'", "CADA.A1 = 'X'"}) {
    SCOPED_TRACE(bad);
    try {
      Selection::parse(bad);
      ADD_FAILURE() << "no error";
    } catch (const Error& e) {
      EXPECT_EQ(e.number(), 3075);
    }
  }
}

}  // namespace
}  // namespace mz::print
