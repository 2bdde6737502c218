// The size boxes of ENTRADA in their two tints, which no script can observe:
// the sizes the reference has, the sizes it lacks, and the tint a box gets
// back after it was entered.
#include <gtest/gtest.h>

#include "shell/program.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/keys.h"
#include "ui/test_host.h"

namespace mz::stock {
namespace {

class EntradaBand : public ::testing::Test {
 protected:
  void SetUp() override {
    store::Workspace::open_database("\\REFE.MDB")
        .execute("Insert into GRUPO (GR, E2, A1, A2, A50) values ('0007', 'CAMISA', 'NÃO', 'SIM', 'SIM')");
    shell::program().register_screens(rt);
    rt.show("ENTRADA");
  }
  ui::Form& f() { return rt.screen("ENTRADA"); }
  uint32_t tint(int n) { return f()["X" + std::to_string(n)].back_colour; }
  void show(const std::string& reference) {
    f()["GR"].set_text(reference);
    rt.set_focus(f()["GR"]);
    rt.set_focus(f()["E2"]);
  }

  mz::testing::ScratchFolder folder;
  ui::TestHost host;
  ui::Runtime rt{host};
};

TEST_F(EntradaBand, TheBoxesShowTheSizesOfTheReference) {
  const uint32_t lacking = tint(1);
  for (int n = 2; n <= 50; ++n) EXPECT_EQ(tint(n), lacking) << n;  // on opening, no reference
  show("7");
  const uint32_t has = tint(2);
  EXPECT_NE(has, lacking);
  EXPECT_EQ(tint(1), lacking);
  EXPECT_EQ(tint(50), has);
  EXPECT_EQ(tint(3), lacking);

  // Entered and left, a box takes its tint back, and a lacking size still
  // takes its quantity.
  for (int n : {1, 2}) {
    rt.set_focus(f()["X" + std::to_string(n)]);
    rt.type_char(U'4');
    EXPECT_NE(tint(n), n == 1 ? lacking : has);  // the focus colour
    rt.set_focus(f()["E7"]);
    EXPECT_EQ(tint(n), n == 1 ? lacking : has) << n;
    EXPECT_EQ(f()["X" + std::to_string(n)].text(), "4");
  }
  EXPECT_EQ(f()["E6"].text(), "8");

  // Another reference repaints every box; F3 paints them all as lacking.
  show("8");
  for (int n : {1, 2, 50}) EXPECT_EQ(tint(n), lacking) << n;
  show("7");
  rt.press_key(ui::key::kF1 + 2);  // F3
  for (int n : {2, 50}) EXPECT_EQ(tint(n), lacking) << n;
}

}  // namespace
}  // namespace mz::stock
