// The accounts screen's day movement at shop scale: 200,000 accounts over
// two years, the settled ones of a day read through the indexes, beside the
// same two questions asked of SQLite by hand.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <random>

#include "bench/support.h"
#include "core/value.h"
#include "shell/program.h"
#include "store/data_folder.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

constexpr int kAccounts = 200000;
constexpr int kDays = 730;
constexpr const char* kMarker = "bench-accounts-1";

std::string account_code(int i) {
  char code[8];
  std::snprintf(code, sizeof code, "%06d", i);
  return code;
}

void fill_accounts(const fs::path& folder) {
  Raw raw(folder / "contas.db");
  raw.exec("BEGIN");
  raw.exec("DELETE FROM Cada");
  sqlite3_stmt* insert = raw.prepare(
      "INSERT INTO Cada (CODIGO, D1, D2, D3, D4, D5, D6, D7, D8, D9, D10, NOME, GRUPO, BX) "
      "VALUES (?, ?, ?, ?, ?, ?, 'VENDA', 'DINHEIRO', '', ?, '', '', '', ?)");
  std::mt19937 rng(63);
  std::uniform_int_distribution<int> day(0, kDays - 1), cents(100, 500000), coin(0, 1);
  const double first_day = Date::from_ymd(2025, 1, 1).serial;
  for (int i = 1; i <= kAccounts; ++i) {
    double issued = first_day + day(rng);
    bind_text(insert, 1, account_code(i));
    bind_text(insert, 2, coin(rng) ? "Receber" : "Pagar");
    sqlite3_bind_double(insert, 3, issued);
    sqlite3_bind_double(insert, 4, issued + 30);
    bind_text(insert, 5, std::to_string(i));
    sqlite3_bind_double(insert, 6, cents(rng) / 100.0);
    bind_text(insert, 7, customer_name(1 + i % kCustomers));
    bind_text(insert, 8, coin(rng) ? "F" : "A");
    sqlite3_step(insert);
    sqlite3_reset(insert);
  }
  raw.exec("COMMIT");
}

}  // namespace

void run_accounts_benchmarks(const fs::path& folder) {
  if (!fs::exists(folder / kMarker)) {
    std::printf("Preparando as contas de medição em %s ...\n", folder.c_str());
    store::setup_data_folder(folder);
    fill_accounts(folder);
    std::fclose(std::fopen((folder / kMarker).c_str(), "w"));
  }
  ui::TestHost host;
  host.clock = Date::from_ymd_hms(2025, 6, 15, 10, 0, 0);
  ui::Runtime rt(host);
  shell::program().register_screens(rt);
  ui::Form& f = rt.show("Contas");
  f["D2"].set_text("15/06/2025");
  double program = median_us(200, [&](int) { rt.click(f["Command3"]); });

  Raw contas(folder / "contas.db");
  sqlite3_stmt* day = contas.prepare("SELECT * FROM Cada WHERE D2 = ? AND D1 = ? AND BX = 'F' ORDER BY CODIGO");
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
