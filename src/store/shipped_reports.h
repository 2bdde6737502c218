#pragma once
// The report templates shipped with the program, built into it from reports/.
#include <vector>

namespace mz::store {

struct ShippedReport {
  const char* name;  // "RECI.rpt"
  const char* text;
};

const std::vector<ShippedReport>& shipped_reports();

}  // namespace mz::store
