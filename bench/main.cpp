// The storage and screen workloads at shop scale, the program's path beside
// a hand-written raw SQLite baseline on the same files: medians and ratio.
//
//   mostruz_bench [DATA_FOLDER]   (built on first use, then reused)
#include <cstdio>

#include "bench/support.h"
#include "store/database.h"

int main(int argc, char** argv) {
  namespace bench = mz::bench;
  bench::fs::path folder = argc > 1 ? bench::fs::path(argv[1]) : bench::fs::path("build/bench-data");
  bench::build_data(folder);
  mz::store::Workspace::set_folder(folder);
  std::printf("%-46s %12s %12s %9s\n", "workload (medians)", "programa", "SQLite puro", "razão");
  bench::run_store_benchmarks(folder);
  bench::run_records_benchmarks(folder);
  bench::run_consulta_benchmarks(folder);
  bench::run_entrada_benchmarks(folder);
  bench::run_label_benchmarks(folder);
  bench::run_cash_benchmarks(folder);
  bench::run_accounts_benchmarks(folder);
  bench::run_settlement_benchmarks(folder);
  bench::run_account_search_benchmarks(folder);
  return 0;
}
