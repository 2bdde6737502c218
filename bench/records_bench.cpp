// The master-record screens driven through the runtime as a clerk drives
// them: leaving the product code, the browse buttons, opening the customer
// card, and the customer duplicate checks.
#include <benchmark/benchmark.h>

#include "bench/support.h"
#include "shell/program.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

void run_records_benchmarks(const fs::path&) {}

}  // namespace mz::bench
