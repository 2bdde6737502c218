// The photo of a reference, with a real picture from outside the data
// folder, which no script can stage.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "shell/program.h"
#include "support/scratch_folder.h"
#include "ui/test_host.h"

namespace mz::records {
namespace {

namespace fs = std::filesystem;

// The bytes of a 1x1 GIF.
const std::string kPicture("GIF89a\x01\x00\x01\x00\x80\x00\x00\x00\x00\x00\xff\xff\xff!\xf9\x04\x01\x00\x00\x00\x00,"
                           "\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02\x44\x01\x00;",
                           43);

std::string contents(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

struct PhotoFixture {
  testing::ScratchFolder data;
  testing::TempFolder elsewhere;
  ui::TestHost host;
  ui::Runtime rt{host};
  fs::path source = elsewhere.path() / "camisa azul.gif";
  ui::Form* card = nullptr;

  PhotoFixture() {
    std::ofstream(source, std::ios::binary) << kPicture;
    shell::program().register_screens(rt);
    card = &rt.show("PRODUTO");
  }
  void pick(const std::string& path) {
    host.answers.push_back({ui::Answer::Ok, path, true});
    rt.click((*card)["Command5"]);
  }
  std::string large_view() {
    rt.click((*card)["IMG1"]);
    std::string shown = rt.screen("FrmImg")["Image1"].text();
    rt.close("FrmImg");
    return shown;
  }
};

TEST(ProdutoPhoto, IsCopiedIntoFotosUnderItsOwnName) {
  PhotoFixture f;
  f.pick(f.source.string());
  const fs::path copy = f.data.path() / "Fotos" / "camisa azul.gif";
  EXPECT_EQ(contents(copy), kPicture);
  EXPECT_EQ((*f.card)["E4"].text(), "camisa azul.gif");
  EXPECT_EQ((*f.card)["IMG1"].text(), f.source.string());
  EXPECT_TRUE(f.host.messages.empty());
}

TEST(ProdutoPhoto, TheLargeViewLooksBesideTheDataFilesNotInFotos) {
  PhotoFixture f;
  f.pick(f.source.string());
  EXPECT_EQ(f.large_view(), "");
  fs::copy_file(f.source, f.data.path() / "camisa azul.gif");
  EXPECT_EQ(f.large_view(), (f.data.path() / "camisa azul.gif").string());
  // A name with the old separator reaches into a folder of the data folder.
  (*f.card)["E4"].set_text("Fotos\\camisa azul.gif");
  EXPECT_EQ(f.large_view(), (f.data.path() / "Fotos" / "camisa azul.gif").string());
}

TEST(ProdutoPhoto, ACopyThatFailsChangesNothing) {
  PhotoFixture f;
  // A file where the folder should be: neither the folder nor the copy can be made.
  std::ofstream(f.data.path() / "Fotos") << "not a folder";
  (*f.card)["E4"].set_text("PRATELEIRA 2");
  f.pick(f.source.string());
  EXPECT_EQ((*f.card)["E4"].text(), "PRATELEIRA 2");
  EXPECT_EQ((*f.card)["IMG1"].text(), "");
  EXPECT_TRUE(f.host.messages.empty());
}

}  // namespace
}  // namespace mz::records
