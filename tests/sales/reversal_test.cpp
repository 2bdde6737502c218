// "02- Estorno": the sale's rows leave the three files together, the marker
// row takes their place, and a failure on the way leaves every file as it was.
#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <random>
#include <thread>

#include "core/error.h"
#include "sales/stored_rows.h"
#include "sales/venda/posting.h"
#include "sales/venda/reversal.h"
#include "store/database.h"
#include "support/scratch_folder.h"

namespace mz::sales {
namespace {

const Date kSold = Date::from_ymd(2026, 11, 24);
const Date kReversed = Date::from_ymd(2026, 11, 30);

SaleOnScreen sale(const std::string& customer, int instalments) {
  SaleOnScreen s;
  s.c1 = customer;
  s.ven = "JOANA";
  s.k4 = "CARNÊ";
  s.w1 = s.w3 = "90,00";
  s.w2 = s.w4 = s.w5 = "0,00";
  s.w6 = "90,00";
  s.a2 = "P";
  s.items = {{"1", ">001201-CAMISA POLO", "PP", "50,00", "50,00"}, {"1", ">001303-MEIA", "M", "40,00", "40,00"}};
  for (int i = 1; i <= instalments; ++i)
    s.instalments.push_back({std::to_string(i), "24/12/2026", "30,00", "CONTAS", "CARNÊ"});
  return s;
}

// The rows of the sale's number in each file, then those of the other sale.
struct Counts {
  size_t lines, closing, accounts, cash;
};

Counts counts(const std::string& number) {
  const std::string q = "'" + number + "'";
  return {stored_rows("VENDA.MDB", "SELECT CODIGO FROM VENDA WHERE CODIGO = " + q).size(),
          stored_rows("VENDA1.MDB", "SELECT CODIGO FROM VENDA WHERE CODIGO = " + q).size(),
          stored_rows("Contas.Mdb", "SELECT CODIGO FROM Cada WHERE D4 = " + q).size(),
          stored_rows("Caixa.Mdb", "SELECT codigo FROM Cada WHERE A3 = " + q).size()};
}

void expect_counts(const std::string& number, Counts want) {
  SCOPED_TRACE(number);
  Counts got = counts(number);
  EXPECT_EQ(got.lines, want.lines);
  EXPECT_EQ(got.closing, want.closing);
  EXPECT_EQ(got.accounts, want.accounts);
  EXPECT_EQ(got.cash, want.cash);
}

const Reversal kFirst{"00000001", "JOANA", "CONTAS", "ANA", "P"};

struct Case {
  const char* name;
  int instalments;
  Counts before;  // rows of sale 00000001 once recorded
};

TEST(SaleReversal, TakesOutEveryRowOfTheSaleAndLeavesOneMarker) {
  const Case cases[] = {{"closed at once", 0, {2, 1, 1, 1}}, {"three open instalments", 3, {2, 3, 3, 1}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    testing::ScratchFolder folder;
    ASSERT_EQ(post_sale(sale("ANA", c.instalments), kSold), "00000001");
    ASSERT_EQ(post_sale(sale("ANA", c.instalments), kSold), "00000002");
    expect_counts("00000001", c.before);
    reverse_sale(kFirst, kReversed);
    expect_counts("00000001", {0, 0, 1, 1});  // the marker, and the sale's credit in the cash book
    expect_counts("00000002", c.before);
    EXPECT_EQ(stored_rows("Contas.Mdb", "SELECT D1, D2, D3, D4, D5, D6, D7, D8, D9, BX, PG, VP, D10, GRUPO, NOME FROM Cada "
                                 "WHERE D4 = '00000001'"),
              std::vector<std::string>{"Receber|30/11/2026|30/11/2026|00000001|0|Estono - JOANA|CONTAS|Estorno Venda|"
                                       "ANA|F|30/11/2026|P|Estorno Venda|Estorno Venda|~"});
  }
}

TEST(SaleReversal, SettledInstalmentsGoTooAndTheirCashStays) {
  testing::ScratchFolder folder;
  post_sale(sale("ANA", 3), kSold);
  store::Database contas = store::Workspace::open_database("Contas.Mdb");
  contas.execute("UPDATE Cada SET BX = 'F', PG = #11/28/2026# WHERE CODIGO = '000001'");
  store::Workspace::open_database("Caixa.Mdb")
      .execute("INSERT INTO Cada (codigo, A1, A2, A3, A5) VALUES ('0000002', #11/28/2026#, 'Crédito', '000001', 30)");
  reverse_sale(kFirst, kReversed);
  EXPECT_EQ(stored_rows("Contas.Mdb", "SELECT CODIGO, BX FROM Cada ORDER BY CODIGO"), std::vector<std::string>{"000001|F"});
  EXPECT_EQ(stored_rows("Caixa.Mdb", "SELECT codigo, A3 FROM Cada ORDER BY codigo"),
            (std::vector<std::string>{"0000001|00000001", "0000002|000001"}));
}

TEST(SaleReversal, ANumberNotOnFileLeavesOnlyTheMarker) {
  testing::ScratchFolder folder;
  post_sale(sale("ANA", 0), kSold);
  reverse_sale({"00000007", "JOANA", "DINHEIRO", "ANA", "P"}, kReversed);
  expect_counts("00000001", {2, 1, 1, 1});
  EXPECT_EQ(stored_rows("Contas.Mdb", "SELECT CODIGO, D4, D5 FROM Cada WHERE D4 = '00000007'"),
            std::vector<std::string>{"000002|00000007|0"});
}

// The marker is written after every deletion: a file that refuses it must
// bring the deleted rows back.
TEST(SaleReversal, AFailureAtTheMarkerLeavesTheSaleWhole) {
  testing::ScratchFolder folder;
  post_sale(sale("ANA", 3), kSold);
  store::Workspace::close_all();
  sqlite3* raw = nullptr;
  ASSERT_EQ(sqlite3_open(store::Workspace::file_path("Contas.Mdb").c_str(), &raw), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(raw, "CREATE TRIGGER refuse BEFORE INSERT ON Cada BEGIN SELECT RAISE(ABORT, 'disco cheio'); END",
                         nullptr, nullptr, nullptr),
            SQLITE_OK);
  sqlite3_close(raw);
  try {
    reverse_sale(kFirst, kReversed);
    ADD_FAILURE() << "the marker was written";
  } catch (const Error& e) {
    EXPECT_EQ(e.number(), 3022) << e.what();  // the refused insert, told as Jet tells a refused row
  }
  expect_counts("00000001", {2, 3, 3, 1});
}

std::string number_of(int n) {
  char buf[16];
  std::snprintf(buf, sizeof buf, "%08d", n);
  return buf;
}

// A station killed while it reverses sales one after another: each sale is
// then either whole or reversed, never half of each.
TEST(SaleReversal, AStationKilledMidReversalLeavesEachSaleWholeOrReversed) {
  constexpr int kSales = 40;
  testing::ScratchFolder folder;
  for (int n = 1; n <= kSales; ++n) post_sale(sale("ANA", 3), kSold);
  std::mt19937 random(20261130);
  std::uniform_int_distribution<int> moment_ms(5, 80);
  for (int round = 0; round < 6; ++round) {
    store::Workspace::close_all();  // no connection may cross a fork
    pid_t pid = fork();
    ASSERT_GE(pid, 0);
    if (pid == 0) {
      try {
        for (int n = 1;; n = n % kSales + 1) reverse_sale({number_of(n), "JOANA", "CONTAS", "ANA", "P"}, kReversed);
      } catch (const std::exception& e) {
        fprintf(stderr, "%s\n", e.what());
      }
      _exit(1);  // no test-runner clean-up in the child
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(moment_ms(random)));
    kill(pid, SIGKILL);
    int status = 0;
    waitpid(pid, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the station stopped by itself in round " << round;
  }
  int reversed_sales = 0;
  for (int n = 1; n <= kSales; ++n) {
    Counts c = counts(number_of(n));
    const bool whole = c.lines == 2 && c.closing == 3 && c.accounts == 3;
    const bool reversed = c.lines == 0 && c.closing == 0 && c.accounts == 1;
    EXPECT_TRUE(whole || reversed) << number_of(n) << ": " << c.lines << " lines, " << c.closing
                                   << " closing rows, " << c.accounts << " accounts";
    EXPECT_EQ(c.cash, 1u);
    reversed_sales += reversed;
  }
  EXPECT_GT(reversed_sales, 0);
  EXPECT_LT(reversed_sales, kSales);
}

}  // namespace
}  // namespace mz::sales
