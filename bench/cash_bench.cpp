// The cash book at shop scale: opening CAIXA over 200,000 cash lines, with
// the day's lines and the all-time balance (a sum for each word over the
// index that holds the operation and the value), beside the same questions
// asked of SQLite by hand.
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

constexpr int kCashLines = 200000;
constexpr int kDays = 2000;  // about a hundred lines a day, the last day being today

double today_serial() { return Date::from_ymd(2026, 11, 22).serial; }

void build_cash(const fs::path& folder) {
  const fs::path marker = folder / "bench-cash-2";
  if (fs::exists(marker)) return;
  std::printf("Preparando o caixa de medição em %s ...\n", folder.c_str());
  Raw raw(folder / "caixa.db");
  raw.exec("BEGIN");
  raw.exec("DELETE FROM Cada");
  sqlite3_stmt* insert =
      raw.prepare("INSERT INTO Cada (codigo, A1, A2, A3, A4, A5, A6, PLANO, NOME) VALUES (?, ?, ?, ?, 'DINHEIRO', ?, ?, '', '')");
  std::mt19937 rng(7);
  std::uniform_int_distribution<int> cents(100, 99999), kind(0, 9);
  for (int i = 0; i < kCashLines; ++i) {
    char code[16];
    std::snprintf(code, sizeof code, "%07d", i + 1);
    bind_text(insert, 1, code);
    sqlite3_bind_double(insert, 2, today_serial() - (kDays - 1) + i / (kCashLines / kDays));
    bind_text(insert, 3, kind(rng) < 6 ? "Crédito" : "Débito");
    bind_text(insert, 4, std::to_string(i));
    sqlite3_bind_double(insert, 5, cents(rng) / 100.0);
    bind_text(insert, 6, "LANÇAMENTO " + std::to_string(i));
    sqlite3_step(insert);
    sqlite3_reset(insert);
  }
  raw.exec("COMMIT");
  std::FILE* done = std::fopen(marker.c_str(), "w");
  if (done) std::fclose(done);
}

}  // namespace

void run_cash_benchmarks(const fs::path& folder) {
  build_cash(folder);
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  double program = median_us(50, [&](int) {
    rt.show("CAIXA");
    rt.close("CAIXA");
  });
  Raw caixa(folder / "caixa.db");
  sqlite3_stmt* day = caixa.prepare("SELECT * FROM Cada WHERE A1 = ? ORDER BY codigo");
  sqlite3_stmt* sum = caixa.prepare("SELECT sum(A5) FROM Cada WHERE A2 >= ?1 AND A2 COLLATE BINARY = ?1");
  double raw = median_us(50, [&](int) {
    sqlite3_bind_double(day, 1, today_serial());
    benchmark::DoNotOptimize(all_cells(day));
    for (const char* operation : {"Débito", "Crédito"}) {
      bind_text(sum, 1, operation);
      benchmark::DoNotOptimize(all_cells(sum));
    }
  });
  report("opening CAIXA (200,000 cash lines)", program, raw);
}

}  // namespace mz::bench
