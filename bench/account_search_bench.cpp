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

void run_account_search_benchmarks(const fs::path& folder) {
  build_accounts(folder);
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
      "SELECT D3, D4, D5, D7, D9, CODIGO, D6 FROM Cada WHERE D3 BETWEEN ? AND ? AND BX = 'A' AND D1 = 'Pagar' "
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
