// Every label sheet the program ships must come back from a scanner as the
// codes it was given: each label of a full sheet, rasterised at 300 dpi.
#include <gtest/gtest.h>

#include <algorithm>

#include "print/render.h"
#include "print/report.h"
#include "print/template.h"
#include "store/database.h"
#include "store/shipped_reports.h"
#include "support/pdf_reader.h"
#include "support/scratch_folder.h"

namespace mz::print {
namespace {

struct Sheet {
  const char* name;
  size_t labels;
  bool shop_margins;  // the label screen sets the margins it keeps
};

const Sheet kSheets[] = {
    {"BARRA2.rpt", 25, true},  {"BARRA2X.rpt", 25, true},  {"BARRA4.rpt", 25, true},  {"BARRA5.rpt", 25, true},
    {"BARRA30.rpt", 30, false}, {"BARRA3.rpt", 60, true},   {"BARRA3X.rpt", 60, true}, {"BARRA3P.rpt", 60, true},
    {"BARRA3XP.rpt", 60, true}, {"BARRA65.rpt", 65, true},
};

size_t labels_per_sheet(const std::string& name) {
  for (const auto& shipped : store::shipped_reports())
    if (name == shipped.name) {
      Template t = parse_template(shipped.text, name);
      return static_cast<size_t>(t.across * t.down);
    }
  return 0;
}

TEST(PrintLabelSheet, EveryLabelOfEverySheetScansBackAsItsCode) {
  if (!testing::have_program("zbarimg") || !testing::have_program("pdftoppm"))
    GTEST_SKIP() << "zbarimg or pdftoppm is not installed";
  for (const Sheet& sheet : kSheets) {
    SCOPED_TRACE(sheet.name);
    testing::ScratchFolder folder;
    ASSERT_EQ(labels_per_sheet(sheet.name), sheet.labels);
    std::vector<std::string> codes;
    store::Recordset rs = store::Workspace::open_database("\\BARRA.MDB").open_recordset("Select * From BARRA order by CONTA");
    for (size_t i = 1; i <= sheet.labels; ++i) {
      std::string code = std::to_string(100000 + 137 * i);  // six digits, each label its own
      codes.push_back(code);
      rs.add_new();
      rs["CONTA"] = static_cast<int>(i);
      rs["CODIGO"] = "*" + code + "*";
      rs["TIPO"] = code.substr(0, 4) + ".01.GG";
      rs["NOME"] = "CAMISA POLO MANGA CURTA ALGODÃO";
      rs["VALOR"] = "1.259,90";
      rs["NN"] = "CONFECÇÕES SANT'ANA";
      rs["V3"] = "419,97 = 1.259,90";
      rs.update();
    }
    rs.close();
    ReportRequest request{"\\BARRA.MDB", "", sheet.name, Destination::Printer, std::nullopt};
    if (sheet.shop_margins) request.margins = Margins{720, 360, 360, 720};  // as a new shop keeps them
    Document doc = run_report(request, Date::from_ymd(2026, 11, 23));
    ASSERT_EQ(doc.pages.size(), 1u) << "a full sheet is one page";
    std::string pdf = (folder.path() / "etiquetas.pdf").string();
    write_pdf(doc, pdf);
    std::vector<std::string> read = testing::read_barcodes(pdf, 300);
    std::sort(read.begin(), read.end());
    EXPECT_EQ(read, codes);
  }
}

}  // namespace
}  // namespace mz::print
