#include "stock/balance.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "stock/psest.h"
#include "stock/screens.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "support/scratch_folder.h"
#include "ui/test_host.h"

namespace mz::stock {
namespace {

using store::sql_quote;
using store::Workspace;

// A ledger row of one reference with a quantity in one slot.
void post(const char* file, const char* table, const std::string& reference, int slot, const std::string& quantity) {
  std::string x = "X" + std::to_string(slot);
  Workspace::open_database(file).execute(std::string("Insert into ") + table + " (CODIGO, REFERENCIA, " + x +
                                         ", QTDA) values ('00000001', " + sql_quote(reference) + ", " +
                                         sql_quote(quantity) + ", " + sql_quote(quantity) + ")");
}

TEST(StockBalance, EntriesLessSalesAndExits) {
  struct Move {
    const char* file;
    const char* table;
    const char* reference;
    int slot;
    const char* quantity;
  };
  struct Case {
    const char* what;
    std::vector<Move> moves;
    const char* reference;
    std::vector<std::pair<int, double>> slots;  // slot -> balance; others 0
    double whole;
  };
  const std::vector<Case> cases = {
      {"entry, sale and exit in one slot",
       {{"ENTRA.MDB", "ENTRA", "0001", 3, "10"}, {"VENDA.MDB", "VENDA", "0001", 3, "2"}, {"SAI.MDB", "ENTRA", "0001", 3, "1"}},
       "0001", {{3, 7}}, 7},
      {"a sale with no entry is negative", {{"VENDA.MDB", "VENDA", "0002", 1, "4"}}, "0002", {{1, -4}}, -4},
      {"nothing at all is zero", {}, "0003", {}, 0},
      {"other references do not count",
       {{"ENTRA.MDB", "ENTRA", "0004", 2, "5"}, {"ENTRA.MDB", "ENTRA", "0005", 2, "9"}, {"SAI.MDB", "ENTRA", "0004", 50, "1"}},
       "0004", {{2, 5}, {50, -1}}, 4},
      {"fractions pass through", {{"ENTRA.MDB", "ENTRA", "0006", 1, "1,5"}, {"VENDA.MDB", "VENDA", "0006", 1, "0,25"}},
       "0006", {{1, 1.25}}, 1.25},
      {"a reference in another case spelling is the same",
       {{"ENTRA.MDB", "ENTRA", "ab1", 2, "5"}, {"VENDA.MDB", "VENDA", "AB1", 2, "1"}}, "Ab1", {{2, 4}}, 4},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    testing::ScratchFolder folder;
    for (const auto& m : c.moves) post(m.file, m.table, m.reference, m.slot, m.quantity);
    std::array<double, kSlots> expected{};
    for (auto [slot, value] : c.slots) expected[slot - 1] = value;
    EXPECT_EQ(slot_balances(c.reference), expected);
    EXPECT_EQ(reference_balance(c.reference), c.whole);
    auto all = all_reference_balances();
    EXPECT_EQ(all.count(c.reference) ? all[c.reference] : 0.0, c.whole);
  }
}

TEST(StockBalance, ManyReferencesShareThreeStatements) {
  testing::ScratchFolder folder;
  slot_balances("0000");
  size_t before = 0;
  for (const char* f : {"ENTRA.MDB", "VENDA.MDB", "SAI.MDB"}) before += Workspace::open_database(f).prepared_statements();
  for (int ref = 1; ref <= 200; ++ref) slot_balances(std::to_string(ref));
  size_t after = 0;
  for (const char* f : {"ENTRA.MDB", "VENDA.MDB", "SAI.MDB"}) after += Workspace::open_database(f).prepared_statements();
  EXPECT_EQ(after, before);
  EXPECT_EQ(before, 3u);
}

// A product with its size flags: the slots listed open, the others "NÃO".
void product(const std::string& reference, std::initializer_list<int> open) {
  std::string columns = "GR", values = sql_quote(reference);
  for (int n = 1; n <= kSlots; ++n) {
    bool is_open = std::find(open.begin(), open.end(), n) != open.end();
    columns += ", A" + std::to_string(n);
    values += is_open ? ", 'SIM'" : ", 'NÃO'";
  }
  Workspace::open_database("REFE.MDB").execute("Insert into GRUPO (" + columns + ") values (" + values + ")");
}

using Lines = std::vector<std::pair<int, double>>;

Lines lines_of(std::string_view reference, const SlotRule& rule) {
  Lines lines;
  for (const SlotLine& line : slot_lines(reference, rule)) lines.emplace_back(line.slot, line.balance);
  return lines;
}

TEST(StockBalance, EachScreenAsksItsOwnSlots) {
  testing::ScratchFolder folder;
  product("0001", {2, 3});
  post("ENTRA.MDB", "ENTRA", "0001", 1, "4");
  post("ENTRA.MDB", "ENTRA", "0001", 3, "10");
  post("VENDA.MDB", "VENDA", "0001", 3, "2");
  post("SAI.MDB", "ENTRA", "0001", 3, "1");
  post("ENTRA.MDB", "ENTRA", "0001", 45, "6");
  post("VENDA.MDB", "VENDA", "0001", 30, "1");
  const SlotRule all_ungated{26, kSlots, 45, Gate::None, Listing::NonZero};
  struct Case {
    const char* what;
    std::string reference;
    SlotRule rule;
    Lines expected;
  };
  const std::vector<Case> cases = {
      {"slot 1 alone, whatever the flags", "0001", kSlotOneOnly, {{1, 4}}},
      {"slot 1 closed, other slots ungated, zeros left out", "0001", kDetails, {{3, 7}, {30, -1}, {45, 6}}},
      {"each slot by its flag, zeros listed", "0001", kSaleSizes, {{2, 0}, {3, 7}}},
      {"the first half by the flags", "0001", kGroupsFirstHalf, {{2, 0}, {3, 7}}},
      {"the second half with slot 45 never asked", "0001", kGroupsSecondHalf, {}},
      {"one slot, whatever the flags", "0001", single_slot(45), {{45, 6}}},
      {"the range ungated", "0001", all_ungated, {{30, -1}}},
      {"a reference not on file opens no size", "0009", kSaleSizes, {}},
      {"a reference not on file under slot 1 alone", "0009", kSlotOneOnly, {{1, 0}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(lines_of(c.reference, c.rule), c.expected);
  }
}

TEST(StockBalance, QuantitiesShowPlainWithTheirSign) {
  EXPECT_EQ(quantity_text(7), "7");
  EXPECT_EQ(quantity_text(-4), "-4");
  EXPECT_EQ(quantity_text(12345), "12345");
  EXPECT_EQ(quantity_text(1.25), "1,25");
}

TEST(StockBalance, SalePopUpListsTheOpenSizes) {
  testing::ScratchFolder folder;
  product("0007", {1, 5});
  post("ENTRA.MDB", "ENTRA", "0007", 5, "3");
  post("ENTRA.MDB", "ENTRA", "0007", 6, "9");
  ui::TestHost host;
  ui::Runtime rt(host);
  rt.register_screen("PSEST", make_psest);
  std::array<std::string, kSlots> captions{};
  captions[0] = "P";
  captions[4] = "GG";
  show_psest(rt, "", captions);
  EXPECT_FALSE(rt.is_shown("PSEST"));
  show_psest(rt, "0007", captions);
  ASSERT_TRUE(rt.is_shown("PSEST"));
  const ui::GridCells& g = rt.screen("PSEST")["Grid1"].grid;
  ASSERT_EQ(g.rows, 3);
  EXPECT_EQ(g.cell(1, 0), "P");
  EXPECT_EQ(g.cell(1, 1), "0");
  EXPECT_EQ(g.cell(2, 0), "GG");
  EXPECT_EQ(g.cell(2, 1), "3");
  rt.press_key(13);
  EXPECT_FALSE(rt.is_shown("PSEST"));
}

}  // namespace
}  // namespace mz::stock
