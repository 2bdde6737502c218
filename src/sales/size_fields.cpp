#include "sales/size_fields.h"

#include <cctype>

#include "core/text.h"
#include "records/grade.h"
#include "stock/balance.h"

namespace mz::sales {

std::string size_field(int slot) { return "A" + std::to_string(slot); }

void add_size_fields(ui::Form& f) {
  for (int n = 1; n <= stock::kSlots; ++n) f.add(size_field(n), ui::ControlKind::TextBox).visible = false;
}

void load_size_names(ui::Form& f) {
  auto names = records::grade_load();
  for (int n = 1; n <= stock::kSlots; ++n) f[size_field(n)].set_text(names ? (*names)[static_cast<size_t>(n - 1)] : "");
}

int size_slot(const std::string& code, size_t at) {
  const std::string digits = mid(code, at, 2);
  if (digits.size() != 2 || !isdigit(static_cast<unsigned char>(digits[0])) ||
      !isdigit(static_cast<unsigned char>(digits[1])))
    return 0;
  const int slot = (digits[0] - '0') * 10 + (digits[1] - '0');
  return slot <= stock::kSlots ? slot : 0;
}

}  // namespace mz::sales
