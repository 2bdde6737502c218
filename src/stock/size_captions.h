#pragma once
// The size captions a stock screen keeps out of sight: A1..A50 hold the
// shop's size grade, so a slot number can be shown as the size it names.
#include <string>

#include "records/grade.h"
#include "stock/balance.h"
#include "ui/form.h"

namespace mz::stock {

// count hidden text boxes named prefix1..prefixN, out of the tab order.
inline void add_hidden_captions(ui::Form& f, const std::string& prefix, int count) {
  for (int n = 1; n <= count; ++n) {
    ui::Control& caption = f.add(prefix + std::to_string(n), ui::ControlKind::TextBox);
    caption.visible = false;
    caption.tab_stop = false;
  }
}

inline void add_size_captions(ui::Form& f) { add_hidden_captions(f, "A", kSlots); }

// A1..A50 from the size grade; left as they stand when no grade is on file.
inline void load_size_captions(ui::Form& f) {
  if (auto captions = records::grade_load())
    for (int n = 1; n <= kSlots; ++n) f["A" + std::to_string(n)].set_text((*captions)[static_cast<size_t>(n - 1)]);
}

}  // namespace mz::stock
