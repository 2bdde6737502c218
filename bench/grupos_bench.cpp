// GRUPOS and IMPEREFE driven as a clerk drives them: half the sizes of a
// group of 200 references, and the stock list of every reference written
// into IMESTO and rendered to PDF.
#include <benchmark/benchmark.h>

#include "bench/support.h"
#include "print/render.h"
#include "shell/program.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

constexpr const char* kGroup = "GRUPO DE 200";
constexpr int kGroupSize = 200;

// Every 50th reference makes up the group, spread over the ledgers as any
// group's references are; the others stay as they were.
void make_group(const fs::path& folder) {
  Raw refe(folder / "refe.db");
  refe.exec("UPDATE GRUPO SET E1 = 'GRUPO DE 200' WHERE CAST(GR AS INTEGER) % 50 = 7");
}

std::string grouped_sums(const char* table, int first, int last, const std::string& list) {
  std::string sql = "SELECT REFERENCIA";
  for (int n = first; n <= last; ++n) sql += ", sum(X" + std::to_string(n) + ")";
  return sql + " FROM " + table + " WHERE REFERENCIA IN (" + list + ") GROUP BY REFERENCIA";
}

void bench_group_half(const fs::path& folder) {
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  ui::Form& f = rt.show("GRUPOS");
  f["E1"].set_text(kGroup);
  double program = median_us(30, [&](int) { rt.click(f["Command1"]); });
  if (f["n"].text() != std::to_string(kGroupSize)) std::fprintf(stderr, "GRUPOS listed %s references\n", f["n"].text().c_str());

  // By hand: the group's products, then its open slots (1 to 12 in this
  // data) summed for the whole list, one statement per ledger.
  Raw refe(folder / "refe.db"), entra(folder / "entra.db"), venda(folder / "venda.db"), sai(folder / "sai.db");
  sqlite3_stmt* products = refe.prepare("SELECT * FROM GRUPO WHERE E1 = ?");
  bind_text(products, 1, kGroup);
  std::string list;
  while (sqlite3_step(products) == SQLITE_ROW)
    list += std::string(list.empty() ? "'" : ", '") + reinterpret_cast<const char*>(sqlite3_column_text(products, 0)) + "'";
  sqlite3_reset(products);
  sqlite3_stmt* sums[] = {entra.prepare(grouped_sums("ENTRA", 1, 12, list)),
                          venda.prepare(grouped_sums("VENDA", 1, 12, list)),
                          sai.prepare(grouped_sums("ENTRA", 1, 12, list))};
  double raw = median_us(30, [&](int) {
    benchmark::DoNotOptimize(all_cells(products));
    for (sqlite3_stmt* s : sums) benchmark::DoNotOptimize(all_cells(s));
  });
  report("GRUPOS: \"01 a 25\", a group of 200 references", program, raw);
  rt.close("GRUPOS");
}

void bench_stock_list(const fs::path& folder) {
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  ui::Form& f = rt.show("IMPEREFE");
  f["Combo1"].set_text("LISTA GERAL DE ESTOQUE.");
  const std::string pdf = (fs::temp_directory_path() / "mostruz-bench-e4.pdf").string();
  double rows_only = median_us(5, [&](int) {
    rt.click(f["SSCommand7"]);
    host.reports.clear();
  });
  double program = median_us(5, [&](int) {
    rt.click(f["SSCommand7"]);
    print::write_pdf(host.reports.back().document, pdf);
    host.reports.clear();
  });
  fs::remove(pdf);

  // By hand: the three grouped sums, the walk of the products, and a row a
  // reference written in one transaction.
  Raw refe(folder / "refe.db"), entra(folder / "entra.db"), venda(folder / "venda.db"), sai(folder / "sai.db"),
      imesto(folder / "imesto.db");
  sqlite3_stmt* sums[] = {entra.prepare("SELECT REFERENCIA, sum(QTDA) FROM ENTRA GROUP BY REFERENCIA"),
                          venda.prepare("SELECT REFERENCIA, sum(QTDA) FROM VENDA GROUP BY REFERENCIA"),
                          sai.prepare("SELECT REFERENCIA, sum(QTDA) FROM ENTRA GROUP BY REFERENCIA")};
  sqlite3_stmt* products = refe.prepare("SELECT GR, E2, E3, E7, E1 FROM GRUPO ORDER BY GR");
  sqlite3_stmt* insert = imesto.prepare("INSERT INTO A1 (GR, E2, E3, E7, E1, QTDA, RESU) VALUES (?, ?, ?, ?, ?, ?, ?)");
  double raw = median_us(5, [&](int) {
    for (sqlite3_stmt* s : sums) benchmark::DoNotOptimize(all_cells(s));
    imesto.exec("BEGIN");
    imesto.exec("DELETE FROM A1");
    while (sqlite3_step(products) == SQLITE_ROW) {
      for (int c = 0; c < 5; ++c)
        sqlite3_bind_text(insert, c + 1, reinterpret_cast<const char*>(sqlite3_column_text(products, c)), -1,
                          SQLITE_TRANSIENT);
      sqlite3_bind_double(insert, 6, 0);
      sqlite3_bind_double(insert, 7, 0);
      sqlite3_step(insert);
      sqlite3_reset(insert);
    }
    sqlite3_reset(products);
    imesto.exec("COMMIT");
  });
  report("IMPEREFE: stock list rows (10,000 references)", rows_only, raw);
  report("IMPEREFE: stock list rows and E4 to PDF", program, raw);
  rt.close("IMPEREFE");
}

}  // namespace

void run_grupos_benchmarks(const fs::path& folder) {
  make_group(folder);
  bench_group_half(folder);
  bench_stock_list(folder);
}

}  // namespace mz::bench
