// The stock of a group in one grouped statement per ledger, checked against
// the one-reference rule; and the GRUPOS table as a spreadsheet that a
// spreadsheet program reads: the size captions as headings, quantities as
// numbers.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>

#include "print/spreadsheet.h"
#include "shell/program.h"
#include "stock/balance.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "support/scratch_folder.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::stock {
namespace {

using store::sql_quote;
using store::Workspace;

void post(const char* file, const char* table, const std::string& reference, int slot, int quantity) {
  Workspace::open_database(file).execute(std::string("Insert into ") + table + " (CODIGO, REFERENCIA, X" +
                                         std::to_string(slot) + ", QTDA) values ('00000001', " +
                                         sql_quote(reference) + ", " + std::to_string(quantity) + ", " +
                                         std::to_string(quantity) + ")");
}

// A product of a group with the slots listed open.
void product(const std::string& reference, const std::string& group, std::initializer_list<int> open) {
  std::string columns = "GR, E1, E2, E9, E11", values = sql_quote(reference) + ", " + sql_quote(group) + ", 'PRODUTO " +
                                                        reference + "', '59,9', '69,9'";
  for (int n : open) {
    columns += ", A" + std::to_string(n);
    values += ", 'SIM'";
  }
  Workspace::open_database("REFE.MDB").execute("Insert into GRUPO (" + columns + ") values (" + values + ")");
}

SizeFlags flags(std::initializer_list<int> open) {
  SizeFlags f{};
  for (int n : open) f[static_cast<size_t>(n - 1)] = true;
  return f;
}

using Lines = std::vector<std::pair<int, double>>;

Lines pairs(const std::vector<SlotLine>& lines) {
  Lines out;
  for (const SlotLine& line : lines) out.emplace_back(line.slot, line.balance);
  return out;
}

TEST(StockGroupBalances, EveryReferenceAsTheOneReferenceRuleHasIt) {
  testing::ScratchFolder folder;
  const std::vector<FlaggedReference> refs = {
      {"0001", flags({1, 2, 3, 25, 26, 45, 50})},
      {"0002", flags({2})},
      {"0003", flags({})},            // no size open
      {"0009", flags({1, 26})},       // on no ledger at all
      {"0001", flags({1, 2, 3, 25, 26, 45, 50})},  // named twice
      {"000a", flags({4})},           // the ledgers spell it "000A"
  };
  for (const char* r : {"0001", "0002", "0003", "0009", "000a"}) product(r, "G", {});
  post("ENTRA.MDB", "ENTRA", "0001", 1, 10);
  post("ENTRA.MDB", "ENTRA", "0001", 1, 5);
  post("VENDA.MDB", "VENDA", "0001", 1, 3);
  post("SAI.MDB", "ENTRA", "0001", 1, 2);
  post("ENTRA.MDB", "ENTRA", "0001", 45, 7);
  post("VENDA.MDB", "VENDA", "0001", 25, 1);
  post("SAI.MDB", "ENTRA", "0001", 50, 4);
  post("VENDA.MDB", "VENDA", "0002", 2, 6);
  post("ENTRA.MDB", "ENTRA", "0003", 2, 8);
  post("ENTRA.MDB", "ENTRA", "000A", 4, 9);
  const SlotRule first_half{1, 25, 0, Gate::EverySlot, Listing::All};
  const SlotRule second_half{26, kSlots, 45, Gate::EverySlot, Listing::All};
  const SlotRule ungated{1, kSlots, 0, Gate::None, Listing::NonZero};
  struct Case {
    const char* what;
    SlotRule rule;
  };
  for (const Case& c : {Case{"first half", first_half}, Case{"second half without slot 45", second_half},
                        Case{"details", kDetails}, Case{"sale sizes", kSaleSizes}, Case{"ungated", ungated}}) {
    SCOPED_TRACE(c.what);
    const auto grouped = group_slot_lines(refs, c.rule);
    ASSERT_EQ(grouped.size(), refs.size());
    for (size_t i = 0; i < refs.size(); ++i) {
      SCOPED_TRACE(refs[i].reference);
      // slot_lines reads the flags from GRUPO, where every size is closed:
      // the gated rules are compared slot by slot under the given flags.
      Lines expected;
      for (const SlotLine& line : slot_lines(refs[i].reference, SlotRule{c.rule.first, c.rule.last, c.rule.left_out,
                                                                          Gate::None, Listing::All})) {
        bool open = c.rule.gate == Gate::None || refs[i].flags[static_cast<size_t>(line.slot - 1)] ||
                    (c.rule.gate == Gate::SlotOneOnly && line.slot != 1);
        if (open && (c.rule.listing == Listing::All || line.balance != 0)) expected.emplace_back(line.slot, line.balance);
      }
      EXPECT_EQ(pairs(grouped[i]), expected);
    }
  }
  EXPECT_EQ(pairs(group_slot_lines(refs, first_half)[0]), (Lines{{1, 10}, {2, 0}, {3, 0}, {25, -1}}));
  EXPECT_EQ(pairs(group_slot_lines(refs, second_half)[0]), (Lines{{26, 0}, {50, -4}}));
  EXPECT_EQ(pairs(group_slot_lines(refs, ungated)[5]), (Lines{{4, 9}}));
}

TEST(StockGroupBalances, AGroupWithNoOpenSizeAsksNothing) {
  testing::ScratchFolder folder;
  const std::vector<FlaggedReference> refs = {{"0001", flags({})}, {"0002", flags({45})}};
  const auto lines = group_slot_lines(refs, SlotRule{26, kSlots, 45, Gate::EverySlot, Listing::All});
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_TRUE(lines[0].empty());
  EXPECT_TRUE(lines[1].empty());
  size_t prepared = 0;
  for (const char* f : {"ENTRA.MDB", "VENDA.MDB", "SAI.MDB"}) prepared += Workspace::open_database(f).prepared_statements();
  EXPECT_EQ(prepared, 0u);
}

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

TEST(StockGrupos, TheTableExportsAsASpreadsheetWithTheSizesAsHeadings) {
  if (std::system("unzip -v >/dev/null 2>&1") != 0) GTEST_SKIP() << "unzip is not installed";
  testing::ScratchFolder folder;
  product("0007", "CAMISAS", {1, 2});
  product("0008", "CAMISAS", {2, 26});
  post("ENTRA.MDB", "ENTRA", "0007", 1, 12);
  post("VENDA.MDB", "VENDA", "0008", 2, 3);
  post("ENTRA.MDB", "ENTRA", "0008", 26, 4);
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  ui::Form& f = rt.show("GRUPOS");
  f["E1"].set_text("CAMISAS");

  struct Case {
    const char* fill;
    const char* print;
    std::vector<std::string> cells;  // what the sheet must hold
  };
  const std::vector<Case> cases = {
      // Slot 1 of 0007 in E2, slot 2 of 0008 in F3; the sizes PP and P head E and F.
      {"Command1", "Command6",
       {R"(<c r="E2"><v>12</v></c>)", R"(<c r="F2"><v>0</v></c>)", R"(<c r="F3"><v>-3</v></c>)",
        R"(<c r="C2"><v>59.9</v></c>)"}},
      // Slot 26 heads E as "40"; slot 26 of 0008 holds 4.
      {"Command2", "Command7", {R"(<c r="E3"><v>4</v></c>)"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.fill);
    rt.click(f[c.fill]);
    rt.click(f[c.print]);
    ASSERT_FALSE(host.reports.empty());
    const auto& job = host.reports.back();
    EXPECT_EQ(job.request.destination, print::Destination::File);
    EXPECT_TRUE(job.request.spreadsheet);
    const std::string book = (folder.path() / "tabela.xlsx").string();
    print::write_spreadsheet(job.document, book);
    const std::string sheet = workbook_part(book, "xl/worksheets/sheet1.xml");
    const std::string strings = workbook_part(book, "xl/sharedStrings.xml");
    for (const std::string& cell : c.cells) EXPECT_NE(sheet.find(cell), std::string::npos) << cell << "\n" << sheet;
    // The references stay codes, and the headings are text.
    EXPECT_NE(strings.find("<t>0007</t>"), std::string::npos);
    EXPECT_NE(strings.find("<t>Refer.</t>"), std::string::npos);
    EXPECT_EQ(sheet.find(R"(<c r="E1"><v>)"), std::string::npos) << "a size caption is a heading, not a number";
    EXPECT_EQ(job.document.table.front()[4], c.fill == std::string("Command1") ? "PP" : "40");
  }
}

}  // namespace
}  // namespace mz::stock
