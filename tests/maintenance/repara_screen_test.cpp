// REPARA with a damaged file and a scratch file left by a crash, which no
// script can stage.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "maintenance/files.h"
#include "shell/program.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/test_host.h"

namespace mz::maintenance {
namespace {

namespace fs = std::filesystem;

std::string bytes_of(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

TEST(MaintenanceRepara, ADamagedFileIsNamedLeftAsItIsAndTheOthersAreRepaired) {
  testing::ScratchFolder folder;
  store::Workspace::close_all();
  std::ofstream(folder.file("cada.db"), std::ios::binary | std::ios::trunc) << std::string(8192, '\x5A');
  std::ofstream(folder.path() / kScratchFile) << "a partial copy left by a crash";
  const std::string damaged = bytes_of(folder.file("cada.db"));
  const size_t files = database_files(folder.path()).size();

  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  ui::Form& f = rt.show("REPARA");
  EXPECT_EQ(f["File1"].items.size(), files) << "the scratch file is not listed";
  host.answers.push_back({ui::Answer::Yes, "", false});
  rt.click(f["Command3"]);

  ASSERT_EQ(host.messages.size(), 2u);
  EXPECT_EQ(host.messages[0].text, "Deseja reparar os " + std::to_string(files) + " Bancos de Dados existentes?");
  EXPECT_EQ(host.messages[1].text,
            "O banco de dados cada.db está danificado e não foi reparado: a verificação de integridade encontrou "
            "erros. O arquivo foi mantido como estava; restaure-o de um backup.");
  EXPECT_EQ(f["List1"].items.size(), files - 1);
  EXPECT_EQ(std::count(f["List1"].items.begin(), f["List1"].items.end(), "cada.db"), 0);
  EXPECT_EQ(bytes_of(folder.file("cada.db")), damaged);
  EXPECT_FALSE(fs::exists(folder.path() / kScratchFile));

  // The one file chosen: the same message, no success.
  f["File1"].list_index = static_cast<int>(
      std::find(f["File1"].items.begin(), f["File1"].items.end(), "cada.db") - f["File1"].items.begin());
  rt.dbl_click(f["File1"]);
  ASSERT_EQ(host.messages.size(), 3u);
  EXPECT_EQ(host.messages[2].text, host.messages[1].text);
  EXPECT_FALSE(host.waiting) << "the wait pointer is back";
}

}  // namespace
}  // namespace mz::maintenance
