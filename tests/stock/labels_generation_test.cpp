// F4 on a movement: the rows BARRA gets from the grid, and when it gets none.
#include <gtest/gtest.h>

#include <sqlite3.h>

#include "labels_movement.h"
#include "store/connection.h"

namespace mz::stock {
namespace {

using testing::LabelFixture;

constexpr const char* kReminder = "Lembre-se de gravar a entrada/saída antes da emissão das etiquetas.";

TEST(LabelsGeneration, OneRowAPieceOfTheMarkedLines) {
  LabelFixture fx;
  LabelFixture::sql("\\GRADE.Mdb", "update GRADE set A1 = 'P', A2 = 'M', A4 = 'GG', A5 = 'G', A9 = '42'");
  LabelFixture::product("0007", "CAMISA D'ÁVILA", "90,00", "100,00");
  LabelFixture::product("0008", "CALÇA", "50,00", "60,00");
  LabelFixture::record("\\ENTRA.MDB", "00000001");
  LabelFixture::sql("\\BARRA.MDB", "Insert into BARRA (CONTA, CODIGO) values (1, '*999999*')");  // the last print's
  fx.lay_out({
      {"0007", {{1, "3"}, {2, "0"}, {5, "2"}, {9, "1"}}},
      {"0008", {{1, "4"}}, "NÃO"},      // quantities, but not for labels
      {"0999", {{2, "1"}}},             // a reference no longer on file
      {"0008", {{3, ""}, {4, "2"}}},    // an empty cell counts no piece
  });
  generate_labels(fx.rt, "\\ENTRA.MDB", "00000001", fx.grid);

  EXPECT_EQ(fx.messages(), std::vector<std::string>{kReminder});
  EXPECT_TRUE(fx.rt.is_shown("ETI"));
  EXPECT_FALSE(fx.host.waiting);
  EXPECT_EQ(fx.barra("CONTA, CODIGO, TIPO, VALOR, NOME"),
            (std::vector<std::string>{
                "1|*000701*|0007.01.P|100,00|CAMISA D'ÁVILA",
                "2|*000701*|0007.01.P|100,00|CAMISA D'ÁVILA",
                "3|*000701*|0007.01.P|100,00|CAMISA D'ÁVILA",
                "4|*000705*|0007.05.G|100,00|CAMISA D'ÁVILA",
                "5|*000705*|0007.05.G|100,00|CAMISA D'ÁVILA",
                "6|*000709*|0007.09.42|100,00|CAMISA D'ÁVILA",  // the code carries the slot, not the size
                "7|*099902*|0999.02.M||",
                "8|*000804*|0008.04.GG|60,00|CALÇA",
                "9|*000804*|0008.04.GG|60,00|CALÇA",
            }));
  EXPECT_EQ(fx.barra("NN, PRAZO, DES, V3")[0], "|||");
}

TEST(LabelsGeneration, NothingMarkedLeavesBarraEmpty) {
  LabelFixture fx;
  LabelFixture::record("\\ENTRA.MDB", "00000002");
  LabelFixture::sql("\\BARRA.MDB", "Insert into BARRA (CONTA, CODIGO) values (1, '*999999*')");
  fx.lay_out({{"0007", {{1, "3"}}, "NÃO"}});
  generate_labels(fx.rt, "\\ENTRA.MDB", "00000002", fx.grid);
  EXPECT_TRUE(fx.barra("CONTA").empty());
  EXPECT_TRUE(fx.rt.is_shown("ETI"));
}

TEST(LabelsGeneration, AnUnrecordedMovementStopsAfterTheReminder) {
  struct Case {
    const char* what;
    const char* recorded_in;
    const char* ledger;
  };
  for (Case c : {Case{"nothing recorded", nullptr, "\\ENTRA.MDB"},
                 Case{"recorded as an exit, looked for among the entries", "\\SAI.MDB", "\\ENTRA.MDB"}}) {
    SCOPED_TRACE(c.what);
    LabelFixture fx;
    if (c.recorded_in) LabelFixture::record(c.recorded_in, "00000003");
    LabelFixture::sql("\\BARRA.MDB", "Insert into BARRA (CONTA, CODIGO) values (1, '*999999*')");
    fx.lay_out({{"0007", {{1, "3"}}}});
    generate_labels(fx.rt, c.ledger, "00000003", fx.grid);
    EXPECT_EQ(fx.messages(), (std::vector<std::string>{kReminder, "Antes da impressão, grave a movimentação."}));
    EXPECT_FALSE(fx.rt.is_shown("ETI"));
    EXPECT_EQ(fx.barra("CODIGO"), std::vector<std::string>{"*999999*"});
  }
}

TEST(LabelsGeneration, AnOrderReadsItsOwnLedger) {
  LabelFixture fx;
  LabelFixture::record("\\SAI.MDB", "00000004");
  fx.lay_out({{"0007", {{1, "1"}}}});
  generate_labels(fx.rt, "\\SAI.MDB", "00000004", fx.grid);
  EXPECT_EQ(fx.barra("CODIGO"), std::vector<std::string>{"*000701*"});
}

// Another station in the middle of writing BARRA, for the life of the object;
// the program waits on it only briefly.
class HeldBarra {
 public:
  explicit HeldBarra(const std::filesystem::path& file) {
    sqlite3_open(file.c_str(), &db_);
    sqlite3_exec(db_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
  }
  ~HeldBarra() {
    sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(db_);
  }

 private:
  sqlite3* db_ = nullptr;
};

struct BriefLockWait {
  BriefLockWait() { store::Connection::set_lock_timeout_ms(50); }
  ~BriefLockWait() { store::Connection::set_lock_timeout_ms(2000); }
};

TEST(LabelsGeneration, ABarraHeldByAnotherStationIsPassedOver) {
  BriefLockWait brief;
  LabelFixture fx;
  LabelFixture::record("\\ENTRA.MDB", "00000005");
  LabelFixture::sql("\\BARRA.MDB", "Insert into BARRA (CONTA, CODIGO) values (1, '*999999*')");
  fx.lay_out({{"0007", {{1, "2"}}}});
  {
    HeldBarra other(fx.folder.file("barra.db"));
    generate_labels(fx.rt, "\\ENTRA.MDB", "00000005", fx.grid);
  }
  EXPECT_EQ(fx.messages(), std::vector<std::string>{kReminder});
  EXPECT_TRUE(fx.rt.is_shown("ETI"));
  EXPECT_FALSE(fx.host.waiting);
  EXPECT_EQ(fx.barra("CODIGO"), std::vector<std::string>{"*999999*"});
}

}  // namespace
}  // namespace mz::stock
