// A Like that only fixes the start of a text is walked as an index range and
// keeps finding exactly the rows the plain Like finds.
#include <gtest/gtest.h>

#include <algorithm>

#include "store/collation.h"
#include "store/database.h"
#include "store/dialect.h"
#include "store/sql_text.h"
#include "support/scratch_folder.h"

namespace mz::store {
namespace {

TEST(StorePrefixLike, BecomesARangeOnlyWhereItStandsAlone) {
  struct Case {
    const char* statement;
    const char* sql;
    std::vector<std::string> params;
  };
  const std::vector<Case> cases = {
      {"Select * From grupo Where (grupo.E2 Like 'CAMI*') Order By E2;",
       "Select rowid AS mz_rowid , * From grupo Where ( ( grupo . E2 >= ? COLLATE MZ AND grupo . E2 < ? COLLATE MZ AND "
       "grupo . E2 Like ? ) ) Order By E2",
       {"CAMI", "CAMJ", "CAMI*"}},
      // The last letter raised past its accented forms; several stars are one.
      {"select E2 from GRUPO where E2 like 'calç**'",
       "select rowid AS mz_rowid , E2 from GRUPO where ( E2 >= ? COLLATE MZ AND E2 < ? COLLATE MZ AND E2 like ? )",
       {"calç", "calè", "calç**"}},
      {"select GR from GRUPO where E1 = 'X' and [E2] Like 'Á*' or GR = '1'",
       "select rowid AS mz_rowid , GR from GRUPO where E1 = ? and ( [E2] >= ? COLLATE MZ AND [E2] < ? COLLATE MZ AND [E2] Like ? ) or GR = ?",
       {"X", "Á", "Ç", "Á*", "1"}},
      {"select GR from GRUPO where not E2 Like 'z*'",
       "select rowid AS mz_rowid , GR from GRUPO where not ( E2 >= ? COLLATE MZ AND E2 < ? COLLATE MZ AND E2 Like ? )", {"z", "{", "z*"}},
      // "%" and "_" are plain characters of the dialect.
      {"select GR from GRUPO where E2 Like 'A%_*'",
       "select rowid AS mz_rowid , GR from GRUPO where ( E2 >= ? COLLATE MZ AND E2 < ? COLLATE MZ AND E2 Like ? )", {"A%_", "A%`", "A%_*"}},
      // No wild card: the text is its own prefix, and the Like keeps the equal ones.
      {"select GR from GRUPO where E2 Like 'CAMISA'",
       "select rowid AS mz_rowid , GR from GRUPO where ( E2 >= ? COLLATE MZ AND E2 < ? COLLATE MZ AND E2 Like ? )",
       {"CAMISA", "CAMISB", "CAMISA"}},
      // A number-like start on a column that is text in every table.
      {"select GR from GRUPO where GR Like '12*'",
       "select rowid AS mz_rowid , GR from GRUPO where ( GR >= ? COLLATE MZ AND GR < ? COLLATE MZ AND GR Like ? )",
       {"12", "13", "12*"}},
      {"select GR from GRUPO where E2 Like ' A*'",
       "select rowid AS mz_rowid , GR from GRUPO where ( E2 >= ? COLLATE MZ AND E2 < ? COLLATE MZ AND E2 Like ? )",
       {" A", " B", " A*"}},
      {"Select * from entra where entra.nome Like 'SANT''ANA' AND (entra.REFERENCIA Like '0123*')",
       "Select rowid AS mz_rowid , * from entra where ( entra . nome >= ? COLLATE MZ AND entra . nome < ? COLLATE MZ AND "
       "entra . nome Like ? ) AND ( ( entra . REFERENCIA >= ? COLLATE MZ AND entra . REFERENCIA < ? COLLATE MZ AND "
       "entra . REFERENCIA Like ? ) )",
       {"SANT'ANA", "SANT'ANB", "SANT'ANA", "0123", "0124", "0123*"}},
      // Left as they are: other wild cards, no prefix, a number-like start on a number column,
      // a letter whose capital sorts apart, and a Like inside a larger term.
      {"select GR from GRUPO where E2 Like '*POLO*'", "select rowid AS mz_rowid , GR from GRUPO where E2 Like ?", {"*POLO*"}},
      {"select GR from GRUPO where E2 Like 'CAM?SA*'", "select rowid AS mz_rowid , GR from GRUPO where E2 Like ?", {"CAM?SA*"}},
      {"select GR from GRUPO where E2 Like 'CAM[IE]*'", "select rowid AS mz_rowid , GR from GRUPO where E2 Like ?", {"CAM[IE]*"}},
      {"select GR from GRUPO where E2 Like '*'", "select rowid AS mz_rowid , GR from GRUPO where E2 Like ?", {"*"}},
      {"select QTDA from ENTRA where X1 Like '1*'", "select rowid AS mz_rowid , QTDA from ENTRA where X1 Like ?", {"1*"}},
      {"select GR from GRUPO where E2 Like 'ÿ*'", "select rowid AS mz_rowid , GR from GRUPO where E2 Like ?", {"ÿ*"}},
      {"select GR from GRUPO where E1 & E2 Like 'A*'", "select rowid AS mz_rowid , GR from GRUPO where E1 || E2 Like ?", {"A*"}},
      {"select GR from GRUPO where E2 Like 'A*' & 'B'", "select rowid AS mz_rowid , GR from GRUPO where E2 Like ? || ?", {"A*", "B"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.statement);
    Translation t = translate(c.statement);
    EXPECT_EQ(t.sql, c.sql);
    ASSERT_EQ(t.params.size(), c.params.size());
    for (size_t i = 0; i < c.params.size(); ++i) EXPECT_EQ(t.params[i].value.text(), c.params[i]) << i;
  }
}

TEST(StorePrefixLike, BoundsAreTextAndTheLikeKeepsItsColumn) {
  Translation t = translate("Select * From grupo Where (grupo.E1 Like 'CAM*')");
  ASSERT_EQ(t.params.size(), 3u);
  EXPECT_EQ(t.params[0].column, "");
  EXPECT_EQ(t.params[1].column, "");
  EXPECT_EQ(t.params[2].column, "E1");
  EXPECT_TRUE(t.updatable);
}

class PrefixSearch : public ::testing::Test {
 protected:
  void SetUp() override {
    Database refe = Workspace::open_database("REFE.MDB");
    int code = 0;
    for (const char* text : kDescriptions) {
      char gr[8];
      std::snprintf(gr, sizeof gr, "%04d", ++code);
      refe.execute(std::string("Insert into GRUPO (GR, E2) values ('") + gr + "', " + sql_quote(text) + ")");
    }
  }

  // The references the plain Like finds, walking every row.
  static std::vector<std::string> walked(const std::string& pattern) {
    std::vector<std::string> found;
    Recordset rs = Workspace::open_database("REFE.MDB").open_recordset("Select GR, E2 From grupo Order By E2");
    for (; !rs.eof(); rs.move_next())
      if (like_match(rs["E2"].text(), pattern)) found.push_back(rs["GR"].text());
    return found;
  }

  static std::vector<std::string> searched(const std::string& pattern) {
    std::vector<std::string> found;
    Recordset rs = Workspace::open_database("REFE.MDB").open_recordset(
        "Select * From grupo Where (grupo.E2 Like " + sql_quote(pattern) + ") Order By E2;");
    for (; !rs.eof(); rs.move_next()) found.push_back(rs["GR"].text());
    return found;
  }

  static constexpr const char* kDescriptions[] = {
      "a",          "á",          "A",         "ab",           "Ábaco",     "ÁRVORE",   "árvore",  "AZUL",
      "b",          "B",          "ÇAPATO",    "CALÇA",        "calça",     "CALCA",    "CALÇADO", "CALÇÃO",
      "CAMISA",     "camisa polo", "CAMISETA", "CAMÍSA",       "CAMJ",      "50% OFF",  "50_50",   "500",
      "5%",         "A%B",        "A_B",       "AXB",          "a%",         "ZZ",         "z",         "{CHAVE}",      "ÿ",         "Ÿ",        "yes",     "",
      "D'ÁVILA",    "d'avila",    "ÉDEN",      "éden",         "EDEN",      "ÑANDU",    "NANDU",   "~til"};
  testing::ScratchFolder folder_;
};

TEST_F(PrefixSearch, FindsWhatTheWalkFinds) {
  const std::vector<std::string> patterns = {
      "a*",   "A*",    "á*",    "Á*",    "ab*",  "ÁR*",     "árv*",  "b*",    "ç*",    "cal*",   "CALÇ*",  "calç*",
      "CALC*", "calçã*", "camisa*", "CAMISA *", "CAMÍ*", "cami*", "CAMJ*", "50%*", "50_*",  "5*", "A%*", "a_*", "A%B*",     "z*",     "Z*",
      "{*",   "ÿ*",    "Ÿ*",    "y*",    "d'*",  "D'Á*",    "é*",    "E*",    "ÉDEN*", "ñ*",     "N*",     "~*",
      "zz*",  "*",     "q*",    "CAMISETA*", "CAMISETAS*",
      // Whole texts: no wild card at all.
      "a", "Á", "calça", "CALÇADO", "camisa", "camisa polo", "D'ÁVILA", "eden", "500", "5", "ÿ", "", "50% OFF"};
  for (const auto& pattern : patterns) {
    SCOPED_TRACE(pattern);
    EXPECT_EQ(searched(pattern), walked(pattern));
  }
}

TEST_F(PrefixSearch, CaseIsFreeAndAccentsCount) {
  auto descriptions = [](const std::string& pattern) {
    std::vector<std::string> texts;
    Recordset rs = Workspace::open_database("REFE.MDB").open_recordset(
        "Select E2 From grupo Where (grupo.E2 Like " + sql_quote(pattern) + ") Order By E2;");
    for (; !rs.eof(); rs.move_next()) texts.push_back(rs["E2"].text());
    return texts;
  };
  EXPECT_EQ(descriptions("calç*"), (std::vector<std::string>{"CALÇA", "calça", "CALÇADO", "CALÇÃO"}));
  EXPECT_EQ(descriptions("ÉD*"), (std::vector<std::string>{"ÉDEN", "éden"}));
  EXPECT_EQ(descriptions("ED*"), (std::vector<std::string>{"EDEN"}));
  // "á" sorts beside "a", so the A's and the Á's interleave by what follows.
  EXPECT_EQ(descriptions("a*"), (std::vector<std::string>{"a", "A", "a%", "A%B", "ab", "AXB", "AZUL", "A_B"}));
  EXPECT_EQ(descriptions("a%*"), (std::vector<std::string>{"a%", "A%B"}));
  EXPECT_EQ(descriptions("A_*"), (std::vector<std::string>{"A_B"}));
  EXPECT_EQ(descriptions("Á*"), (std::vector<std::string>{"á", "Ábaco", "ÁRVORE", "árvore"}));
}

TEST_F(PrefixSearch, TheCollationSortsAccentsBesideTheirLetter) {
  std::vector<std::string> texts;
  Recordset rs = Workspace::open_database("REFE.MDB").open_recordset(
      "Select E2 From grupo Where (grupo.E2 Like 'a*') or (grupo.E2 Like 'á*') or (grupo.E2 Like 'b*') Order By E2");
  for (; !rs.eof(); rs.move_next()) texts.push_back(rs["E2"].text());
  EXPECT_EQ(texts, (std::vector<std::string>{"a", "A", "á", "a%", "A%B", "ab", "Ábaco", "ÁRVORE", "árvore", "AXB", "AZUL",
                                              "A_B", "b", "B"}));
}

TEST_F(PrefixSearch, WalksTheIndexOnTheColumn) {
  Recordset rs = Workspace::open_database("REFE.MDB").open_recordset(
      "EXPLAIN QUERY PLAN Select * From grupo Where (grupo.E2 Like 'CAM*') Order By E2");
  std::string plan;
  for (; !rs.eof(); rs.move_next()) plan += rs[3].text() + "\n";
  EXPECT_NE(plan.find("USING INDEX ix_grupo_e2 (E2>? AND E2<?)"), std::string::npos) << plan;
}

}  // namespace
}  // namespace mz::store
