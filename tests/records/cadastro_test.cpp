// What the customer card does when another station holds the customer file,
// and the drop-down of the classifications, which no script can observe.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "shell/program.h"
#include "store/connection.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/test_host.h"

namespace mz::records {
namespace {

// Another station's exclusive hold on a file for the life of the object.
class HeldFile {
 public:
  explicit HeldFile(const std::filesystem::path& file) {
    sqlite3_open(file.c_str(), &db_);
    sqlite3_exec(db_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
  }
  ~HeldFile() {
    sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(db_);
  }

 private:
  sqlite3* db_ = nullptr;
};

class CadastroTest : public ::testing::Test {
 protected:
  void SetUp() override {
    store::Connection::set_lock_timeout_ms(100);
    store::Workspace::open_database("CADA.MDB")
        .execute("Insert into CADA (CODIGO, A1, A4, A26) values ('0001', 'ANA', '5555', 'CLIENTE')");
    shell::program().register_screens(rt);
    rt.show("Cadastro");
  }
  void TearDown() override { store::Connection::set_lock_timeout_ms(2000); }

  std::vector<std::string> messages() const {
    std::vector<std::string> out;
    for (const auto& m : host.messages) out.push_back(m.text);
    return out;
  }

  testing::ScratchFolder folder;
  ui::TestHost host;
  ui::Runtime rt{host};
  ui::Form& f() { return rt.screen("Cadastro"); }
};

using Texts = std::vector<std::string>;

TEST_F(CadastroTest, AHeldCustomerFileStopsEachWriteWithOneMessage) {
  f()["A1"].set_text("BRUNO");
  f()["A26"].set_text("CLIENTE");
  rt.set_focus(f()["A25"]);  // leaving the name looks it up while the file is free
  {
    HeldFile held(folder.file("cada.db"));
    rt.click(f()["Command16"]);
    rt.click(f()["Command5"]);
  }
  EXPECT_EQ(messages(), (Texts{"Operação não realizada.", "Operação não realizada."}));
  EXPECT_FALSE(host.waiting);
  store::Recordset rs = store::Workspace::open_database("CADA.MDB").open_recordset("select count(*) from CADA");
  EXPECT_EQ(rs[0].text(), "1");
}

TEST_F(CadastroTest, AHeldCustomerFileStopsTheLookUpsWithTheSameMessage) {
  {
    HeldFile held(folder.file("cada.db"));
    f()["NN"].set_text("1");
    rt.set_focus(f()["NN"]);
    rt.set_focus(f()["A4"]);
    f()["A4"].set_text("5555");
    rt.set_focus(f()["A24"]);
  }
  EXPECT_EQ(messages(), (Texts{"Operação não realizada.", "Operação não realizada."}));
  EXPECT_FALSE(host.waiting);
  EXPECT_EQ(f()["NN"].text(), "0001");
  EXPECT_EQ(f()["A1"].text(), "");
}

TEST_F(CadastroTest, TheClassificationListDropsDownWithTheFocus) {
  EXPECT_FALSE(f()["A26"].dropped_down);
  rt.set_focus(f()["A26"]);
  EXPECT_TRUE(f()["A26"].dropped_down);
}

}  // namespace
}  // namespace mz::records
