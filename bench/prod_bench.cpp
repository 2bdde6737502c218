// Prod over a month of a shop's sales (about 17,000 lines of 1,000,000):
// the three lists, the totals and the ranking through its work table,
// beside the same questions asked of SQLite by hand, the cost joined in.
#include <benchmark/benchmark.h>

#include <cstdio>

#include "bench/support.h"
#include "shell/program.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

constexpr double kFirstDay = 45717, kLastDay = 45747;  // 01/03/2025 and 31/03/2025

// The ledger's sale rows get what the counter writes on them: the line's
// text, size, price and value, the seller and the payment form; the
// references get a cost.
void build_sale_lines(const fs::path& folder) {
  const fs::path marker = folder / "bench-sale-lines-1";
  if (fs::exists(marker)) return;
  std::printf("Preparando as linhas de venda de medição em %s ...\n", folder.c_str());
  Raw venda(folder / "venda.db");
  venda.exec(
      "UPDATE VENDA SET V1 = '>' || REFERENCIA || printf('%02d', rowid % 12 + 1) || '-PRODUTO ' || REFERENCIA, "
      "V2 = printf('%d', 34 + rowid % 12), V3 = printf('%d,90', 20 + CAST(REFERENCIA AS INTEGER) % 80), "
      "V4 = printf('%d,90', QTDA * (20 + CAST(REFERENCIA AS INTEGER) % 80)), "
      "VENDEDOR = 'VENDEDOR ' || (CAST(CODIGO AS INTEGER) % 8), PAGAMENTO = 'DINHEIRO'");
  Raw(folder / "refe.db").exec("UPDATE GRUPO SET E7 = printf('%d,50', 10 + CAST(GR AS INTEGER) % 40)");
  std::fclose(std::fopen(marker.c_str(), "w"));
}

}  // namespace

void run_prod_benchmarks(const fs::path& folder) {
  build_sale_lines(folder);
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  ui::Form& f = rt.show("Prod");
  f["A2"].set_text("01/03/2025");
  f["A3"].set_text("31/03/2025");
  double program = median_us(10, [&](int) { rt.click(f["Command1"]); });
  std::printf("  (Prod: %d produtos, %d no ranking, %d linhas)\n", f["Grid1"].grid.rows - 1,
              f["Grid3"].grid.rows - 1, f["Grid4"].grid.rows - 1);

  Raw venda(folder / "venda.db"), tmpk(folder / "tmpk.db");
  venda.exec(("ATTACH DATABASE '" + (folder / "refe.db").string() + "' AS refe").c_str());
  const char* kPeriod = " FROM VENDA WHERE DATA BETWEEN ?1 AND ?2 ";
  sqlite3_stmt* lines = venda.prepare(std::string("SELECT QTDA, V3, CODIGO, V1, DATA, NOME, VENDEDOR, PAGAMENTO") +
                                      kPeriod + "ORDER BY DATA");
  sqlite3_stmt* products = venda.prepare(
      "SELECT SUM(v.QTDA), v.V1, v.V3, v.REFERENCIA, v.V2, (SELECT E7 FROM refe.GRUPO g WHERE g.GR = v.REFERENCIA) "
      "FROM VENDA v WHERE v.DATA BETWEEN ?1 AND ?2 GROUP BY v.V1, v.V3, v.REFERENCIA, v.V2 "
      "ORDER BY v.V1, v.V3, v.REFERENCIA, v.V2");
  sqlite3_stmt* ranked = venda.prepare(std::string("SELECT SUM(QTDA), REFERENCIA, MIN(V1)") + kPeriod +
                                       "GROUP BY REFERENCIA ORDER BY REFERENCIA");
  const char* kHeader = "CODIGO, DATA, NOME, VENDEDOR, PAGAMENTO, VALOR";
  sqlite3_stmt* sales = venda.prepare(std::string("SELECT ") + kHeader + kPeriod + "GROUP BY " + kHeader +
                                      " ORDER BY " + kHeader);
  sqlite3_stmt* insert = tmpk.prepare("INSERT INTO tmp (A1, A2, A3) VALUES (printf('%05d', ?1), ?2, ?3)");
  sqlite3_stmt* ranking = tmpk.prepare("SELECT A1, A2, A3 FROM tmp ORDER BY A1 DESC, A2");
  auto period = [&](sqlite3_stmt* s) {
    sqlite3_bind_double(s, 1, kFirstDay);
    sqlite3_bind_double(s, 2, kLastDay);
  };
  double raw = median_us(10, [&](int) {
    for (sqlite3_stmt* s : {lines, products, sales}) {
      period(s);
      benchmark::DoNotOptimize(all_cells(s));
    }
    tmpk.exec("BEGIN IMMEDIATE");
    tmpk.exec("DELETE FROM tmp");
    period(ranked);
    while (sqlite3_step(ranked) == SQLITE_ROW) {
      for (int c = 0; c < 3; ++c) sqlite3_bind_value(insert, c + 1, sqlite3_column_value(ranked, c));
      sqlite3_step(insert);
      sqlite3_reset(insert);
    }
    sqlite3_reset(ranked);
    tmpk.exec("COMMIT");
    benchmark::DoNotOptimize(all_cells(ranking));
  });
  report("Prod: a month, three lists and totals", program, raw);
  rt.close("Prod");
}

}  // namespace mz::bench
