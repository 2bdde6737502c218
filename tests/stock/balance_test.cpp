#include "stock/balance.h"

#include <gtest/gtest.h>

#include "store/database.h"
#include "store/sql_text.h"
#include "support/scratch_folder.h"

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

}  // namespace
}  // namespace mz::stock
