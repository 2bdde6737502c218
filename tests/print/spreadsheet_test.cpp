#include "print/spreadsheet.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>

#include "core/error.h"
#include "support/scratch_folder.h"

namespace mz::print {
namespace {

// One part of the workbook, read through unzip.
std::string workbook_part(const std::string& book, const std::string& part) {
  std::string out;
  std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(("unzip -p '" + book + "' " + part).c_str(), "r"), pclose);
  if (!pipe) return out;
  std::array<char, 4096> buffer;
  size_t n;
  while ((n = fread(buffer.data(), 1, buffer.size(), pipe.get())) > 0) out.append(buffer.data(), n);
  return out;
}

TEST(PrintSpreadsheet, CaptionsAndCellsNumbersAsNumbersCodesAsText) {
  if (std::system("unzip -v >/dev/null 2>&1") != 0) GTEST_SKIP() << "unzip is not installed";
  testing::TempFolder folder;
  Document doc;
  doc.title = "Estoque por grupo: CAMISAS/POLO";
  doc.table = {{"REF.", "DESCRIÇÃO", "P", "VALOR"},
               {"0007", "CAMISA POLO", "12", "1.234,56"},
               {"0010", "", "0", "59,90"}};
  std::string book = (folder.path() / "tabela.xlsx").string();
  write_spreadsheet(doc, book);
  std::string strings = workbook_part(book, "xl/sharedStrings.xml");
  std::string sheet = workbook_part(book, "xl/worksheets/sheet1.xml");
  for (const char* text : {"REF.", "DESCRIÇÃO", "0007", "CAMISA POLO", "0010"})
    EXPECT_NE(strings.find(text), std::string::npos) << text;
  for (const char* number : {"<v>12</v>", "<v>1234.56</v>", "<v>0</v>", "<v>59.9</v>"})
    EXPECT_NE(sheet.find(number), std::string::npos) << number;
  EXPECT_NE(workbook_part(book, "xl/workbook.xml").find("Estoque por grupo CAMISASPOLO"), std::string::npos)
      << "a sheet name loses the characters it cannot hold";
}

TEST(PrintSpreadsheet, AnUnwritablePlaceIsAnError) {
  Document doc;
  doc.table = {{"A"}};
  EXPECT_THROW(write_spreadsheet(doc, "/nonexistent/folder/x.xlsx"), Error);
}

}  // namespace
}  // namespace mz::print
