// The account search: a month of open accounts to pay listed on BUSCON over
// 200,000 accounts, beside the same indexed question asked of SQLite.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <random>

#include "bench/support.h"
#include "core/value.h"
#include "shell/program.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

constexpr int kAccounts = 200000;
constexpr int kFirstControl = 600000;  // clear of the keys other workloads add
constexpr int kDays = 3 * 365;

// Accounts over three years from 2025, half of them settled, half to pay.
void fill_accounts(const fs::path& folder) {
  const char* marker = "bench-account-search-1";
  if (fs::exists(folder / marker)) return;
  std::printf("Preparando as contas de medição em %s ...\n", folder.c_str());
  std::mt19937 rng(7);
  double first_day = Date::from_ymd(2025, 1, 1).serial;
  {
    Raw raw(folder / "contas.db");
    raw.exec("BEGIN");
    sqlite3_stmt* insert = raw.prepare(
        "INSERT INTO Cada (CODIGO, D1, D2, D3, D4, D5, D6, D7, D9, BX) VALUES (?, ?, ?, ?, ?, ?, 'ALUGUEL', 'BOLETO', "
        "?, ?)");
    for (int i = 0; i < kAccounts; ++i) {
      double due = first_day + static_cast<double>(rng() % kDays);
      bind_text(insert, 1, std::to_string(kFirstControl + i));
      bind_text(insert, 2, rng() % 2 ? "Pagar" : "Receber");
      sqlite3_bind_double(insert, 3, due - 30);
      sqlite3_bind_double(insert, 4, due);
      bind_text(insert, 5, std::to_string(rng() % 100000));
      sqlite3_bind_double(insert, 6, static_cast<double>(rng() % 100000) / 100);
      bind_text(insert, 7, customer_name(static_cast<int>(rng() % kCustomers)));
      bind_text(insert, 8, rng() % 2 ? "A" : "F");
      sqlite3_step(insert);
      sqlite3_reset(insert);
    }
    // No ANALYZE: a shop's file has no statistics either.
    raw.exec("COMMIT");
  }
  std::fclose(std::fopen((folder / marker).c_str(), "w"));
}

}  // namespace

void run_account_search_benchmarks(const fs::path& folder) {
  fill_accounts(folder);
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  ui::Form& f = rt.show("BUSCON");
  double program = median_us(50, [&](int) {
    f["A2"].set_text("01/11/2026");
    f["A3"].set_text("30/11/2026");
    rt.click(f["Command1"]);
  });
  Raw contas(folder / "contas.db");
  sqlite3_stmt* month = contas.prepare(
      "SELECT D3, D4, D5, D7, D9, CODIGO, D6 FROM Cada WHERE D3 BETWEEN ? AND ? AND +BX = 'A' AND D1 = 'Pagar' "
      "ORDER BY D3, CODIGO");
  double raw = median_us(50, [&](int) {
    sqlite3_bind_double(month, 1, Date::from_ymd(2026, 11, 1).serial);
    sqlite3_bind_double(month, 2, Date::from_ymd(2026, 11, 30).serial);
    benchmark::DoNotOptimize(all_cells(month));
  });
  report("BUSCON: a month of open accounts", program, raw);
  rt.close("BUSCON");
}

}  // namespace mz::bench
