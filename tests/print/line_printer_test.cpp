#include "print/line_printer.h"

#include <gtest/gtest.h>

namespace mz::print {
namespace {

TEST(PrintLinePrinter, PrintColumnsAndPages) {
  LinePrinter p;
  p.set_font("ARIAL", 8);
  p.text("  ");
  p.end_line();
  p.text("  ").text("2").tab(8).text("CAMISA POLO").tab(45).text("59,90");
  p.end_line();
  p.tab(30).text("Sub Total: 119,80");
  p.end_line();
  p.text("  uma linha longa que passa da coluna").tab(10).text("X");  // past the column: the next line
  p.end_line();
  p.new_page();
  p.text("  Obrigado");
  PrintedDocument doc = p.end_doc();
  EXPECT_EQ(doc.font, "ARIAL");
  EXPECT_EQ(doc.size, 8);
  ASSERT_EQ(doc.pages.size(), 2u);
  EXPECT_EQ(doc.pages[0], (std::vector<std::string>{
                              "  ",
                              "  2    CAMISA POLO" + std::string(26, ' ') + "59,90",  // 59,90 at column 45
                              std::string(29, ' ') + "Sub Total: 119,80",
                              "  uma linha longa que passa da coluna",
                              "         X",
                          }));
  EXPECT_EQ(doc.pages[1], std::vector<std::string>{"  Obrigado"});
  EXPECT_TRUE(p.end_doc().pages.empty()) << "the printer starts afresh";
}

TEST(PrintLinePrinter, PiecesLandOnTheirPrintColumnsOnPaper) {
  LinePrinter p;
  p.set_font("ARIAL", 10);
  p.text("  2").tab(8).text("CAMISA POLO").tab(45).text("59,90");
  p.end_line();
  p.text("  Obrigado pela preferência");
  Document doc = lay_out_printed(p.end_doc());
  ASSERT_EQ(doc.pages.size(), 1u);
  std::vector<std::pair<std::string, double>> pieces;
  for (const Item& item : doc.pages[0].items) {
    const auto& t = std::get<TextItem>(item);
    pieces.emplace_back(t.text, t.x);
  }
  const double column = 10 * 25.4 / 72 * 0.441;
  ASSERT_EQ(pieces.size(), 4u);
  EXPECT_EQ(pieces[0].first, "  2");
  EXPECT_EQ(pieces[1].first, "CAMISA POLO");
  EXPECT_DOUBLE_EQ(pieces[1].second, 10 + 7 * column);
  EXPECT_EQ(pieces[2].first, "59,90");
  EXPECT_DOUBLE_EQ(pieces[2].second, 10 + 44 * column);
  EXPECT_EQ(pieces[3].first, "  Obrigado pela preferência");
  EXPECT_EQ(page_text(doc.pages[0]), (std::vector<std::string>{"  2 CAMISA POLO 59,90", "  Obrigado pela preferência"}));
}

// A print column past the printed text goes to the next line: wide capitals
// that fit by their count of characters still reach past the column on paper.
TEST(PrintLinePrinter, AColumnPastThePrintedWidthStartsANewLine) {
  LinePrinter p;
  p.set_font("ARIAL", 8);
  p.text("  1").tab(8).text("MMMMMMMMMMMMMMMMMMMMMMMMMMMM").tab(45).text("59,90");
  p.end_line();
  p.text("  1").tab(8).text("camisa polo manga curta lisa").tab(45).text("59,90");
  p.end_line();
  const PrintedDocument doc = p.end_doc();
  ASSERT_EQ(doc.pages.size(), 1u);
  EXPECT_EQ(doc.pages[0], (std::vector<std::string>{"  1    MMMMMMMMMMMMMMMMMMMMMMMMMMMM",
                                                    std::string(44, ' ') + "59,90",
                                                    "  1    camisa polo manga curta lisa         59,90"}));
}

TEST(PrintRawPort, EachLineBehindItsControlBytesInTheOldCodePage) {
  RawPort port("\x1B\x0F");
  port.line("  Data: 22/11/2026");
  port.line("  Confecções São João €");
  EXPECT_EQ(port.bytes(), "\x1B\x0F  Data: 22/11/2026\r\n\x1B\x0F  Confec\xE7\xF5" "es S\xE3o Jo\xE3o \x80\r\n");
}

}  // namespace
}  // namespace mz::print
