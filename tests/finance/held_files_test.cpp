// A file held by another station: the trapped handlers of the cash book and
// of the accounts say "Operação não realizada.", lose nothing typed, and
// give the pointer back.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "shell/program.h"
#include "store/connection.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/test_host.h"

namespace mz::finance {
namespace {

class HeldFile {
 public:
  explicit HeldFile(const std::filesystem::path& file) {
    store::Connection::set_lock_timeout_ms(50);
    store::Workspace::close_all();
    sqlite3_open(file.c_str(), &db_);
    held_ = sqlite3_exec(db_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) == SQLITE_OK;
  }
  ~HeldFile() {
    sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(db_);
    store::Connection::set_lock_timeout_ms(2000);
  }
  bool held() const { return held_; }

 private:
  sqlite3* db_ = nullptr;
  bool held_ = false;
};

struct Fixture {
  testing::ScratchFolder folder;
  ui::TestHost host;
  ui::Runtime rt{host};
  Fixture() { shell::program().register_screens(rt); }
  long count(const char* file) {
    store::Database db = store::Workspace::open_database(file);
    return db.open_recordset("Select count(*) from Cada")[0].value().to_number();
  }
  void answer_yes() { host.answers.push_back({ui::Answer::Yes, "", false}); }
};

TEST(HeldFiles, ContasGravaReportsTheLockAndKeepsTheFields) {
  Fixture fx;
  ui::Form& f = fx.rt.show("Contas");
  f["D6"].set_text("ALUGUEL");
  f["D5"].set_text("80,00");
  {
    HeldFile other(fx.folder.file("contas.db"));
    ASSERT_TRUE(other.held());
    fx.answer_yes();
    fx.rt.click(f["sds"]);
  }
  ASSERT_EQ(fx.host.messages.size(), 2u);
  EXPECT_EQ(fx.host.messages[1].text, "Operação não realizada.");
  EXPECT_FALSE(fx.host.waiting);
  EXPECT_EQ(f["D6"].text(), "ALUGUEL");
  EXPECT_EQ(f["D5"].text(), "80,00");
  EXPECT_EQ(fx.count("\\Contas.Mdb"), 0);
  // Once the file is free the same fields are written.
  fx.answer_yes();
  fx.rt.click(f["sds"]);
  EXPECT_EQ(fx.host.messages.back().text, "Inclusão realizada com sucesso.");
  EXPECT_EQ(fx.count("\\Contas.Mdb"), 1);
}

TEST(HeldFiles, CaixaApagaReportsTheLockAndKeepsTheLine) {
  Fixture fx;
  {
    store::Database db = store::Workspace::open_database("\\Caixa.Mdb");
    db.execute("Insert into Cada (codigo, A1, A2, A5, A6) values ('0000001', #11/22/2026#, 'Crédito', 40, 'VENDA')");
  }
  ui::Form& f = fx.rt.show("CAIXA");
  f["Grid1"].grid.row = 1;
  fx.rt.dbl_click(f["Grid1"]);
  EXPECT_EQ(f["NN"].text(), "0000001");
  {
    HeldFile other(fx.folder.file("caixa.db"));
    ASSERT_TRUE(other.held());
    fx.answer_yes();
    fx.rt.click(f["Command11"]);
  }
  EXPECT_EQ(fx.host.messages.back().text, "Operação não realizada.");
  EXPECT_EQ(fx.count("\\Caixa.Mdb"), 1);
}

}  // namespace
}  // namespace mz::finance
