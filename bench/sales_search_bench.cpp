// VENDA's search tab and its reversal at shop scale: a month's sales through
// the period query into the list of the screen, and "02- Estorno" of one sale across VENDA, VENDA1 and
// Contas in one durable unit; each beside the same statements made by hand
// on one SQLite connection.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "bench/support.h"
#include "core/value.h"
#include "sales/venda/reversal.h"
#include "shell/program.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

constexpr double kNovember2025 = 45962;  // 01/11/2025
constexpr double kDecember2025 = 45991;  // 30/11/2025
constexpr int kReversals = 200;
constexpr int kWarmUp = 20;
constexpr int kFirstSale = 150000;  // sales of three lines each, well inside the ledger

double timed(const std::function<void()>& work) {
  auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double>& v) {
  std::nth_element(v.begin(), v.begin() + static_cast<std::ptrdiff_t>(v.size() / 2), v.end());
  return v[v.size() / 2];
}

constexpr const char* kPeriodSql =
    "SELECT CODIGO, DATA, NOME, VENDEDOR, PAGAMENTO, VALOR FROM VENDA WHERE DATA BETWEEN ? AND ? "
    "GROUP BY CODIGO, DATA, NOME, VENDEDOR, PAGAMENTO, VALOR";

std::string sale_number(int n) {
  char buf[16];
  std::snprintf(buf, sizeof buf, "%08d", n);
  return buf;
}

// The planner's road for the month, so that a lost index shows in the output.
void show_plan(Raw& raw) {
  sqlite3_stmt* plan = raw.prepare(std::string("EXPLAIN QUERY PLAN ") + kPeriodSql);
  sqlite3_bind_double(plan, 1, kNovember2025);
  sqlite3_bind_double(plan, 2, kDecember2025);
  while (sqlite3_step(plan) == SQLITE_ROW)
    std::printf("  plano: %s\n", reinterpret_cast<const char*>(sqlite3_column_text(plan, 3)));
}

void bench_period(const fs::path& folder) {
  Raw raw(folder / "venda.db");
  show_plan(raw);
  sqlite3_stmt* month = raw.prepare(kPeriodSql);
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  ui::Form& f = rt.show("VENDA");
  double program = median_us(15, [&](int) {
    f["T1"].set_text("01/11/2025");
    f["T2"].set_text("30/11/2025");
    rt.click(f["Command6"]);
  });
  double baseline = median_us(15, [&](int) {
    sqlite3_bind_double(month, 1, kNovember2025);
    sqlite3_bind_double(month, 2, kDecember2025);
    all_cells(month);
  });
  std::printf("  %d linhas na lista do mês\n", f["Grid4"].grid.rows - 1);
  report("search tab: a month's sales by period, into Grid4", program, baseline);
}

void bench_reversal(const fs::path& folder) {
  const Date today = Date::from_ymd(2026, 11, 24);
  Raw raw(folder / "contas.db");
  for (const char* f : {"venda", "venda1"})
    raw.exec(("ATTACH DATABASE '" + (folder / (std::string(f) + ".db")).string() + "' AS " + f).c_str());
  sqlite3_stmt* lines = raw.prepare("DELETE FROM venda.VENDA WHERE CODIGO = ?");
  sqlite3_stmt* closing = raw.prepare("DELETE FROM venda1.VENDA WHERE CODIGO = ?");
  sqlite3_stmt* accounts = raw.prepare("DELETE FROM main.Cada WHERE D4 = ?");
  sqlite3_stmt* highest = raw.prepare("SELECT max(CODIGO) FROM main.Cada");
  sqlite3_stmt* marker = raw.prepare(
      "INSERT INTO main.Cada (CODIGO, D1, D2, D3, D4, D5, D6, D7, D8, D9, BX, PG, VP, D10, GRUPO) "
      "VALUES (?, 'Receber', ?, ?, ?, 0, 'Estono - JOANA', 'DINHEIRO', 'Estorno Venda', 'ANA', 'F', ?, 'P', "
      "'Estorno Venda', 'Estorno Venda')");
  auto raw_reversal = [&](const std::string& number) {
    raw.exec("BEGIN IMMEDIATE");
    for (sqlite3_stmt* s : {lines, closing, accounts}) {
      bind_text(s, 1, number);
      sqlite3_step(s);
      sqlite3_reset(s);
    }
    sqlite3_step(highest);
    long long top = sqlite3_column_type(highest, 0) == SQLITE_NULL ? 0 : sqlite3_column_int64(highest, 0);
    sqlite3_reset(highest);
    char code[24];
    std::snprintf(code, sizeof code, "%06lld", top + 1);
    bind_text(marker, 1, code);
    for (int c : {2, 3, 5}) sqlite3_bind_double(marker, c, today.serial);
    bind_text(marker, 4, number);
    sqlite3_step(marker);
    sqlite3_reset(marker);
    raw.exec("COMMIT");
  };
  // Taken in turns, so that the disk's moods weigh on both alike; each run
  // reverses a sale of its own, as a clerk reverses one at a time.
  std::vector<double> program, baseline;
  for (int i = 1; i <= kReversals + kWarmUp; ++i) {
    double p = timed([&] { sales::reverse_sale({sale_number(kFirstSale + i), "JOANA", "DINHEIRO", "ANA", "P"}, today); });
    double r = timed([&] { raw_reversal(sale_number(kFirstSale + kReversals + kWarmUp + i)); });
    if (i <= kWarmUp) continue;
    program.push_back(p);
    baseline.push_back(r);
  }
  report("02- Estorno: one sale out of VENDA, VENDA1, Contas", median(program), median(baseline));
}

}  // namespace

void run_sales_search_benchmarks(const fs::path& folder) {
  bench_period(folder);
  bench_reversal(folder);
}

}  // namespace mz::bench
