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

TEST(PrintSelection, AnUnescapedApostropheBreaksTheFormula) {
  for (const char* bad : {"{CADA.A1} = 'D'ÁVILA'", "{CADA.A1} = 'aberto", "{reci.r4} >= Date (2026,2,30)",
                          "{CADA.A1} like 'X'", "CADA.A1 = 'X'"}) {
    SCOPED_TRACE(bad);
    EXPECT_THROW(Selection::parse(bad), Error);
  }
}

}  // namespace
}  // namespace mz::print
