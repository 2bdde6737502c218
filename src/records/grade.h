#pragma once
// The size grid: 50 slots, each with the label the shop gives it.
#include <array>
#include <memory>
#include <optional>
#include <string>

#include "ui/runtime.h"

namespace mz::records {

// GRADE_Load: the labels of slots 1 to 50 (a null as ""), or nothing when
// the grid has no row; every screen that shows sizes takes them from here.
std::optional<std::array<std::string, 50>> grade_load();

std::unique_ptr<ui::Form> make_grade(ui::Runtime& rt);

}  // namespace mz::records
