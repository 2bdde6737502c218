// The entry gate refuses a second copy of the program, which no script can stage.
#include <gtest/gtest.h>

#include "shell/program.h"
#include "support/scratch_folder.h"
#include "ui/test_host.h"

namespace mz::shell {
namespace {

TEST(ShellSenha, ASecondCopyIsToldAndEnds) {
  testing::ScratchFolder folder;
  ui::TestHost host;
  host.another_copy_running = true;
  ui::Runtime rt(host);
  program().register_screens(rt);
  rt.show("SENHA");
  ASSERT_EQ(host.messages.size(), 1u);
  EXPECT_EQ(host.messages[0].text, "O software já está aberto. Se não conseguir entrar reinicie o computador.");
  EXPECT_TRUE(host.ended);
  EXPECT_FALSE(rt.is_shown("INICIO"));
}

}  // namespace
}  // namespace mz::shell
