// The storage and screen workloads at shop scale, the program's path beside
// a hand-written raw SQLite baseline on the same files: medians and ratio.
//
//   mostruz_bench [DATA_FOLDER [AREA...]]   (data built on first use, then reused)
//
// Naming areas (store, records, consulta, ...) runs only those.
#include <cstdio>
#include <cstring>

#include "bench/support.h"
#include "store/data_folder.h"
#include "store/database.h"

namespace {

struct Area {
  const char* name;
  void (*run)(const mz::bench::fs::path&);
};

const Area kAreas[] = {
    {"store", mz::bench::run_store_benchmarks},
    {"records", mz::bench::run_records_benchmarks},
    {"consulta", mz::bench::run_consulta_benchmarks},
    {"entrada", mz::bench::run_entrada_benchmarks},
    {"pedido", mz::bench::run_pedido_benchmarks},
    {"labels", mz::bench::run_label_benchmarks},
    {"cash", mz::bench::run_cash_benchmarks},
    {"accounts", mz::bench::run_accounts_benchmarks},
    {"settlement", mz::bench::run_settlement_benchmarks},
    {"account_search", mz::bench::run_account_search_benchmarks},
    {"venda", mz::bench::run_venda_benchmarks},
    {"sale_posting", mz::bench::run_sale_posting_benchmarks},
    {"balanco", mz::bench::run_balanco_benchmarks},
    {"grupos", mz::bench::run_grupos_benchmarks},
    {"sales_search", mz::bench::run_sales_search_benchmarks},
    {"closing", mz::bench::run_closing_benchmarks},
    {"prod", mz::bench::run_prod_benchmarks},
};

bool chosen(const char* area, int argc, char** argv) {
  if (argc <= 2) return true;
  for (int i = 2; i < argc; ++i)
    if (std::strcmp(argv[i], area) == 0) return true;
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  namespace bench = mz::bench;
  bench::fs::path folder = argc > 1 ? bench::fs::path(argv[1]) : bench::fs::path("build/bench-data");
  bench::build_data(folder);
  mz::store::upgrade_shop_folder(folder);  // the indexes the program adds on starting
  mz::store::Workspace::set_folder(folder);
  std::printf("%-46s %12s %12s %9s\n", "workload (medians)", "programa", "SQLite puro", "razão");
  for (const Area& area : kAreas)
    if (chosen(area.name, argc, argv)) area.run(folder);
  return 0;
}
