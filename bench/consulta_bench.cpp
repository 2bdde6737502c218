// CONSULTA driven as a clerk drives it: DETALHES on a reference (its
// description, written into the search box, narrows the product list), and
// the stock of every reference under "VER ESTOQUE DE FILIAIS".
#include <benchmark/benchmark.h>

#include "bench/support.h"
#include "shell/program.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

std::string slot_sums(const char* table) {
  std::string sql = "SELECT ";
  for (int n = 1; n <= 50; ++n) sql += (n > 1 ? ", sum(X" : "sum(X") + std::to_string(n) + ")";
  return sql + " FROM " + table + " WHERE REFERENCIA = ?";
}

}  // namespace

void run_consulta_benchmarks(const fs::path& folder) {
  Raw refe(folder / "refe.db"), entra(folder / "entra.db"), venda(folder / "venda.db"), sai(folder / "sai.db");
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  ui::Form& f = rt.show("CONSULTA");

  // The product, the list of the products its description begins, then one
  // statement per ledger for all 50 slots.
  double program = median_us(300, [&](int i) {
    f["GR"].set_text(reference_code((i * 37) % kReferences));
    rt.click(f["Command3"]);
  });
  sqlite3_stmt* product = refe.prepare("SELECT * FROM GRUPO WHERE GR = ?");
  sqlite3_stmt* list = refe.prepare(
      "SELECT rowid, GR, E2, E9, E11 FROM GRUPO WHERE (E2 >= ?1 COLLATE MZ AND E2 < ?2 COLLATE MZ AND E2 LIKE ?3) "
      "ORDER BY E2");
  sqlite3_stmt* sums[] = {entra.prepare(slot_sums("ENTRA")), venda.prepare(slot_sums("VENDA")),
                          sai.prepare(slot_sums("ENTRA"))};
  double raw = median_us(300, [&](int i) {
    std::string reference = reference_code((i * 37) % kReferences);
    bind_text(product, 1, reference);
    benchmark::DoNotOptimize(all_cells(product));
    std::string description = "PRODUTO " + reference;
    bind_text(list, 1, description);
    bind_text(list, 2, description + "\xF4\x8F\xBF\xBF");
    bind_text(list, 3, description + "*");
    benchmark::DoNotOptimize(all_cells(list));
    for (sqlite3_stmt* s : sums) {
      bind_text(s, 1, reference);
      benchmark::DoNotOptimize(all_cells(s));
    }
  });
  report("CONSULTA: DETALHES (50 slots)", program, raw);

  // Every reference with three grouped sums over the piece counts.
  program = median_us(11, [&](int) { rt.click(f["Command2"]); });
  sqlite3_stmt* references = refe.prepare("SELECT GR, E2 FROM GRUPO ORDER BY GR");
  sqlite3_stmt* totals[] = {entra.prepare("SELECT REFERENCIA, sum(QTDA) FROM ENTRA GROUP BY REFERENCIA"),
                            venda.prepare("SELECT REFERENCIA, sum(QTDA) FROM VENDA GROUP BY REFERENCIA"),
                            sai.prepare("SELECT REFERENCIA, sum(QTDA) FROM ENTRA GROUP BY REFERENCIA")};
  raw = median_us(11, [&](int) {
    benchmark::DoNotOptimize(all_cells(references));
    for (sqlite3_stmt* s : totals) benchmark::DoNotOptimize(all_cells(s));
  });
  report("CONSULTA: VER ESTOQUE DE FILIAIS (10,000 references)", program, raw);
  rt.close("CONSULTA");
}

}  // namespace mz::bench
