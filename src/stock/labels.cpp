// PLACEHOLDER: replaced by the label generation.
#include "stock/labels.h"

namespace mz::stock {

void generate_labels(ui::Runtime&, std::string_view, const std::string&, const ui::Control&) {}

}  // namespace mz::stock
