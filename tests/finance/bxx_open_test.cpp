// bxx as the account search opens it, and the settlement's unit: nothing of
// Contas.Mdb is held while the cash question waits on the user, and a file
// held by another station leaves the account as it was.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "finance/settlement.h"
#include "shell/program.h"
#include "store/connection.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/test_host.h"

namespace mz::finance {
namespace {

// Another station's connection on a file of the data folder.
class Station {
 public:
  explicit Station(const std::filesystem::path& file) { sqlite3_open(file.c_str(), &db_); }
  ~Station() { sqlite3_close(db_); }
  bool hold() { return sqlite3_exec(db_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) == SQLITE_OK; }
  void release() { sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr); }

 private:
  sqlite3* db_ = nullptr;
};

// Answers Yes to every question and notes whether the accounts could be
// written by another station while the cash question was on the screen.
class QuestionHost : public ui::TestHost {
 public:
  std::filesystem::path accounts;
  bool free_at_cash_question = false;
  ui::Answer message_box(const std::string& text, ui::Buttons buttons, ui::Icon icon,
                         const std::string& title) override {
    if (text == "Confirma credito o caixa?") {
      Station other(accounts);
      free_at_cash_question = other.hold();
      other.release();
    }
    TestHost::message_box(text, buttons, icon, title);
    return ui::Answer::Yes;
  }
};

struct Fixture {
  testing::ScratchFolder folder;
  QuestionHost host;
  ui::Runtime rt{host};
  int rebuilds = 0;
  Fixture() {
    shell::program().register_screens(rt);
    host.accounts = store::Workspace::file_path("Contas.Mdb");
    store::Database db = store::Workspace::open_database("\\Contas.Mdb");
    db.execute(
        "Insert into Cada (CODIGO, D1, D2, D3, D4, D5, D6, D7, D9, BX) values ('000001', 'Receber', #11/01/2026#, "
        "#11/12/2026#, '123', '100,00', 'MENSALIDADE', 'DINHEIRO', 'MARIA', 'A')");
  }
  void open() {
    open_settlement(rt, "000001", [this] { ++rebuilds; });
  }
  std::vector<std::string> rows(const char* file, const char* sql) {
    std::vector<std::string> out;
    store::Database db = store::Workspace::open_database(file);
    for (store::Recordset rs = db.open_recordset(sql); !rs.eof(); rs.move_next()) out.push_back(rs[0].text());
    return out;
  }
};

TEST(Bxx, OpensOnTheKeyAndRebuildsTheCallersListOnClosing) {
  Fixture fx;
  fx.open();
  ui::Form& f = fx.rt.screen("bxx");
  EXPECT_EQ(fx.rt.focused(), &f["PG"]);
  EXPECT_EQ(f["TT"].text(), "CONTA A RECEBER EM ABERTO.");
  EXPECT_EQ(f["G1"].text(), "10");
  f["VP"].set_text("40,00");
  fx.rt.click(f["Confirma"]);
  EXPECT_EQ(fx.rebuilds, 1);
  EXPECT_FALSE(fx.rt.is_shown("bxx"));
  EXPECT_TRUE(fx.host.free_at_cash_question);
  EXPECT_EQ(fx.rows("\\Contas.Mdb", "Select BX from Cada order by CODIGO"), (std::vector<std::string>{"F", "A"}));
  EXPECT_EQ(fx.rows("\\Caixa.Mdb", "Select A5 from Cada"), (std::vector<std::string>{"40"}));
}

TEST(Bxx, AHeldFileLeavesTheAccountAsItWasAndTheScreenOpen) {
  Fixture fx;
  fx.open();
  ui::Form& f = fx.rt.screen("bxx");
  f["VP"].set_text("40,00");
  store::Connection::set_lock_timeout_ms(50);
  store::Workspace::close_all();
  Station other(fx.host.accounts);
  ASSERT_TRUE(other.hold());
  fx.rt.click(f["Confirma"]);
  other.release();
  store::Connection::set_lock_timeout_ms(2000);
  EXPECT_TRUE(fx.rt.is_shown("bxx"));
  EXPECT_EQ(fx.rebuilds, 0);
  EXPECT_EQ(fx.rows("\\Contas.Mdb", "Select BX from Cada order by CODIGO"), (std::vector<std::string>{"A"}));
  EXPECT_TRUE(fx.rows("\\Caixa.Mdb", "Select A5 from Cada").empty());
}

}  // namespace
}  // namespace mz::finance
