// A recorded entry's labels, printed from ETI, scan back as the codes of its
// pieces; each sheet prints with the margins the screen keeps, or its own.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "labels_movement.h"
#include "print/render.h"
#include "support/pdf_reader.h"

namespace mz::stock {
namespace {

using testing::LabelFixture;

void print_option(LabelFixture& fx, const std::string& option) {
  ui::Form& eti = fx.rt.screen("ETI");
  eti["Combo1"].set_text(option);
  fx.rt.click(eti["Imprime"]);
}

TEST(LabelsSheet, AnEntryPrintedFromEtiScansBackAsItsPieces) {
  if (!mz::testing::have_program("zbarimg") || !mz::testing::have_program("pdftoppm"))
    GTEST_SKIP() << "zbarimg or pdftoppm is not installed";
  LabelFixture fx;
  LabelFixture::sql("\\GRADE.Mdb", "update GRADE set A9 = '42'");
  LabelFixture::product("0007", "CAMISA POLO", "90,00", "100,00");
  LabelFixture::product("0123", "BERMUDA SANT'ANA", "45,00", "55,50");
  LabelFixture::record("\\ENTRA.MDB", "00000001");
  fx.lay_out({
      {"0007", {{1, "1"}, {9, "2"}, {50, "1"}}},
      {"0123", {{3, "3"}}},
      {"0456", {{1, "5"}}, "NÃO"},
  });
  generate_labels(fx.rt, "\\ENTRA.MDB", "00000001", fx.grid);
  ASSERT_TRUE(fx.rt.is_shown("ETI"));
  for (const char* option : {"25 ETIQUETAS POR FOLHA", "25 ETIQUETAS POR FOLHA-MOD.2", "30 ETIQUETAS POR FOLHA",
                             "65 ETIQUETAS POR FOLHA-PIMACO"}) {
    SCOPED_TRACE(option);
    print_option(fx, option);
    ASSERT_FALSE(fx.host.reports.empty());
    const print::Document& doc = fx.host.reports.back().document;
    ASSERT_EQ(doc.pages.size(), 1u);
    std::string pdf = (fx.folder.path() / "etiquetas.pdf").string();
    print::write_pdf(doc, pdf);
    std::vector<std::string> read = mz::testing::read_barcodes(pdf, 300);
    std::sort(read.begin(), read.end());
    // A code printed twice on a page is read once: seven pieces, four codes.
    EXPECT_EQ(read, (std::vector<std::string>{"000701", "000709", "000750", "012303"}));
  }
  EXPECT_EQ(fx.barra("CONTA").size(), 7u);
}

TEST(LabelsSheet, TheKeptMarginsApplyWhereTheSheetTakesThem) {
  LabelFixture fx;
  fx.rt.show("ETI");
  ui::Form& eti = fx.rt.screen("ETI");
  eti["M1"].set_text("1000,5");  // whole numbers, halves to even
  eti["M2"].set_text("200");
  eti["M3"].set_text("abc");
  eti["M4"].set_text("900,6");
  print_option(fx, "60 ETIQUETAS POR FOLHA");
  ASSERT_EQ(fx.host.reports.size(), 1u);
  const auto& margins = fx.host.reports[0].request.margins;
  ASSERT_TRUE(margins.has_value());
  EXPECT_EQ(margins->top, 1000);
  EXPECT_EQ(margins->left, 200);
  EXPECT_EQ(margins->right, 0);
  EXPECT_EQ(margins->bottom, 901);
  print_option(fx, "30 ETIQUETAS POR FOLHA");
  ASSERT_EQ(fx.host.reports.size(), 2u);
  EXPECT_FALSE(fx.host.reports[1].request.margins.has_value());
}

}  // namespace
}  // namespace mz::stock
