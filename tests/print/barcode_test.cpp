#include "print/barcode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "print/render.h"
#include "support/pdf_reader.h"
#include "support/scratch_folder.h"

namespace mz::print {
namespace {

TEST(BarcodeBars, Code39WithQuietZones) {
  const std::vector<Bar> bars = code39_bars("000709");
  // Start, six digits, stop: eight characters of five bars each.
  ASSERT_EQ(bars.size(), 40u);
  const std::vector<Bar> stored = code39_bars("*000709*");
  ASSERT_EQ(stored.size(), bars.size()) << "the stored asterisks are the start and stop";
  for (size_t i = 0; i < bars.size(); ++i) {
    EXPECT_EQ(bars[i].x, stored[i].x);
    EXPECT_EQ(bars[i].y, 0) << "full height: no text under the bars";
    EXPECT_EQ(bars[i].height, 1);
    if (i > 0) {
      EXPECT_GT(bars[i].x, bars[i - 1].x + bars[i - 1].width) << "a space between bars";
    }
  }
  const double narrow = std::min_element(bars.begin(), bars.end(), [](const Bar& a, const Bar& b) {
                          return a.width < b.width;
                        })->width;
  const double left_quiet = bars.front().x, right_quiet = 1 - (bars.back().x + bars.back().width);
  EXPECT_GE(left_quiet, 10 * narrow * 0.99) << "ten narrow bars of quiet zone";
  EXPECT_NEAR(left_quiet, right_quiet, 1e-6);
}

TEST(BarcodeBars, NothingToDrawGivesNoBars) {
  for (const char* data : {"", "*", "**", "*Ç01*", "0007_1"}) {
    SCOPED_TRACE(data);
    EXPECT_TRUE(code39_bars(data).empty());
  }
}

// A sheet of labels as the label screen prints them, read back by a scanner.
TEST(BarcodeScan, EveryLabelOfASheetReadsBack) {
  if (!testing::have_program("zbarimg") || !testing::have_program("pdftoppm")) GTEST_SKIP() << "zbar-tools missing";
  constexpr int kAcross = 5, kDown = 13;
  constexpr double kLeft = 8, kTop = 10, kPitchX = 39.4, kPitchY = 21.2;
  Document document;
  std::vector<std::string> expected;
  auto add_label = [&](Page& page, int cell, int reference, int slot) {
    char code[8];
    std::snprintf(code, sizeof code, "%04d%02d", reference, slot);
    expected.push_back(code);
    const double x = kLeft + (cell % kAcross) * kPitchX, y = kTop + (cell / kAcross) * kPitchY;
    page.items.push_back(TextItem{x, y, 35, "Sandália Couro - Tam: 37", 6, false, Align::Center});
    page.items.push_back(BarcodeItem{x, y + 3, 35, 9, slot % 2 ? "*" + std::string(code) + "*" : code});
    page.items.push_back(TextItem{x, y + 12.5, 35, "R$ 159,90", 8, true, Align::Center});
  };
  Page full, partial;
  for (int i = 0; i < kAcross * kDown; ++i) add_label(full, i, 7 + i / 50 * 1000, i % 50 + 1);
  for (int i = 0; i < 7; ++i) add_label(partial, i, 9999, i + 44);  // the last reference and slots
  document.pages = {full, partial};
  testing::TempFolder folder;
  const auto path = folder.path() / "etiquetas.pdf";
  write_pdf(document, path.string());

  std::vector<std::string> read = testing::read_barcodes(path);
  std::sort(read.begin(), read.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(read, expected);
}

}  // namespace
}  // namespace mz::print
