// PLACEHOLDER: replaced by the workload's benchmarks.
#include "bench/support.h"

namespace mz::bench {

void run_cash_benchmarks(const fs::path&) {}

}  // namespace mz::bench
