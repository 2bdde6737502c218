// The general balance is summed by the store over an index, the day's figures
// line by line: both must count exactly the same lines, the two words as
// written and nothing else, to the cent.
#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>

#include "core/format.h"
#include "finance/caixa/cash_book.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "support/scratch_folder.h"

namespace mz::finance::cash {
namespace {

TEST(CashFigures, TheIndexedGeneralBalanceCountsWhatTheWalkOverTheLinesCounts) {
  testing::ScratchFolder folder;
  const char* kOperations[] = {"Crédito", "Débito", "crédito", "DÉBITO", "Débito ", "Estorno", ""};
  std::mt19937 rng(11);
  std::uniform_int_distribution<int> operation(0, 6), cents(0, 9999999), day(1, 28), missing(0, 19);
  {
    store::Database db = open_book();
    store::Database::Transaction unit(db);
    for (int i = 1; i <= 3000; ++i) {
      int c = cents(rng);
      char amount[24];
      std::snprintf(amount, sizeof amount, "%d.%02d", c / 100, c % 100);
      std::string value = missing(rng) == 0 ? "null" : amount;
      db.execute("Insert into Cada (codigo, A1, A2, A5, A6) values (" + store::sql_quote(format(Value(i), "0000000")) +
                 ", #11/" + std::to_string(day(rng)) + "/2026#, " + store::sql_quote(kOperations[operation(rng)]) +
                 ", " + value + ", 'LINHA')");
    }
    unit.commit();
  }
  Totals indexed = all_time_totals();
  Totals walked = exact_totals(all_lines());
  EXPECT_EQ(indexed.credits.units, walked.credits.units);
  EXPECT_EQ(indexed.debits.units, walked.debits.units);
  EXPECT_NE(walked.credits.units, 0);
  EXPECT_NE(walked.debits.units, 0);
}

TEST(CashFigures, AnEmptyBookHasNoTotals) {
  testing::ScratchFolder folder;
  Totals t = all_time_totals();
  EXPECT_EQ(t.credits.units, 0);
  EXPECT_EQ(t.debits.units, 0);
}

}  // namespace
}  // namespace mz::finance::cash
