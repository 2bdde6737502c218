// The accounts screen's day movement at shop scale: 200,000 accounts over
// two years, the settled ones of a day read through the indexes, beside the
// same two questions asked of SQLite by hand.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <random>

#include "bench/support.h"
#include "core/value.h"
#include "shell/program.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

void run_accounts_benchmarks(const fs::path& folder) {
  build_accounts(folder);
  ui::TestHost host;
  host.clock = Date::from_ymd_hms(2025, 6, 15, 10, 0, 0);
  ui::Runtime rt(host);
  shell::program().register_screens(rt);
  ui::Form& f = rt.show("Contas");
  f["D2"].set_text("15/06/2025");
  double program = median_us(200, [&](int) { rt.click(f["Command3"]); });

  Raw contas(folder / "contas.db");
  sqlite3_stmt* day = contas.prepare("SELECT * FROM Cada WHERE D2 = ? AND +D1 = ? AND +BX = 'F' ORDER BY CODIGO");
  const double serial = Date::from_ymd(2025, 6, 15).serial;
  double raw = median_us(200, [&](int) {
    for (const char* operation : {"Receber", "Pagar"}) {
      sqlite3_bind_double(day, 1, serial);
      bind_text(day, 2, operation);
      benchmark::DoNotOptimize(all_cells(day));
    }
  });
  report("Contas: day movement (200,000 accounts)", program, raw);
  rt.close("Contas");
}

}  // namespace mz::bench
