#pragma once
// Money on the sale screens and their lists: "###,##0.00".
#include <string>

#include "core/value.h"
#include "ui/fields.h"

namespace mz::sales {

inline std::string money(const Currency& value) { return ui::money_text(Value(value)); }

}  // namespace mz::sales
