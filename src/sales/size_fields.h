#pragma once
// The size grid as the sale screens hold it: hidden fields A1 to A50 with the
// shop's labels, and product codes whose two digits after the reference name
// the slot ("01" to "50").
#include <string>

#include "ui/runtime.h"

namespace mz::sales {

std::string size_field(int slot);

// The hidden fields, added once when the screen is built...
void add_size_fields(ui::Form& f);
// ...and filled from the size grid each time it loads ("" when it has no row).
void load_size_names(ui::Form& f);

// The slot named by the two characters of `code` at the 1-based `at`, or 0
// when they name none.
int size_slot(const std::string& code, size_t at);

}  // namespace mz::sales
