// The settlement of an account driven through bxx as the account search opens
// it: loading, a short payment that re-issues the rest, and the cash line,
// beside the same statements on raw SQLite.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "bench/support.h"
#include "finance/settlement.h"
#include "shell/program.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

// Open accounts owed more than the 10,00 paid, so that each settlement
// re-issues the rest: the file is reused from run to run, and what one run
// settled the next must not take again.
std::vector<std::string> open_accounts(const fs::path& folder, int count) {
  Raw contas(folder / "contas.db");
  sqlite3_stmt* open = contas.prepare("SELECT CODIGO FROM Cada WHERE BX = 'A' AND D5 > 10");
  std::vector<std::string> keys = all_cells(open);
  std::shuffle(keys.begin(), keys.end(), std::mt19937(7919));
  if (static_cast<int>(keys.size()) > count) keys.resize(count);
  return keys;
}

double program_settlement(const std::vector<std::string>& keys) {
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  return median_us(300, [&](int i) {
    finance::open_settlement(rt, keys.at(i));
    ui::Form& f = rt.screen("bxx");
    f["VP"].set_text("10,00");
    for (ui::Answer a : {ui::Answer::Ok, ui::Answer::Ok, ui::Answer::Yes}) host.answers.push_back({a, "", false});
    rt.click(f["Confirma"]);
    host.answers.clear();
    host.messages.clear();
  });
}

double raw_settlement(const fs::path& folder, const std::vector<std::string>& keys) {
  Raw contas(folder / "contas.db"), caixa(folder / "caixa.db");
  sqlite3_stmt* load = contas.prepare("SELECT * FROM Cada WHERE CODIGO = ?");
  sqlite3_stmt* settle = contas.prepare(
      "UPDATE Cada SET D2 = 46348, D5 = 10, D8 = '', D10 = '', BX = 'F', VP = '10,00', DVP = '', G1 = 0, G2 = 0, "
      "G3 = 0, PG = 46348 WHERE CODIGO = ?");
  sqlite3_stmt* max_account = contas.prepare("SELECT max(CODIGO) FROM Cada");
  sqlite3_stmt* reissue = contas.prepare(
      "INSERT INTO Cada (CODIGO, D1, D2, D3, D4, D5, D6, D7, D8, D9, D10, NOME, GRUPO, BX) "
      "SELECT ?, D1, 45292, D3, D4, 40, D6, D7, '', D9, '', '', '', 'A' FROM Cada WHERE CODIGO = ?");
  sqlite3_stmt* max_cash = caixa.prepare("SELECT max(codigo) FROM Cada");
  sqlite3_stmt* cash = caixa.prepare(
      "INSERT INTO Cada (codigo, A1, A2, A3, A4, A5, A6, PLANO, NOME) VALUES (?, 46348, 'Crédito', '1', "
      "'CREDIÁRIO', 10, 'CLIENTE', '', '')");
  return median_us(300, [&](int i) {
    const std::string& key = keys.at(331 + i);
    bind_text(load, 1, key);
    benchmark::DoNotOptimize(all_cells(load));
    contas.exec("BEGIN IMMEDIATE");
    bind_text(settle, 1, key);
    sqlite3_step(settle);
    sqlite3_reset(settle);
    std::string top = all_cells(max_account).at(0);
    bind_text(reissue, 1, account_code(std::stoi(top) + 1));
    bind_text(reissue, 2, key);
    sqlite3_step(reissue);
    sqlite3_reset(reissue);
    contas.exec("COMMIT");
    caixa.exec("BEGIN IMMEDIATE");
    char next[16];
    std::snprintf(next, sizeof next, "%07d", std::stoi("0" + all_cells(max_cash).at(0)) + 1);
    bind_text(cash, 1, next);
    sqlite3_step(cash);
    sqlite3_reset(cash);
    caixa.exec("COMMIT");
  });
}

}  // namespace

void run_settlement_benchmarks(const fs::path& folder) {
  build_accounts(folder);
  // 300 measured and 30 warm-up settlements for each side.
  std::vector<std::string> keys = open_accounts(folder, 662);
  double program = program_settlement(keys);
  double raw = raw_settlement(folder, keys);
  report("settlement with re-issue and cash line (200,000 accounts)", program, raw);
}

}  // namespace mz::bench
