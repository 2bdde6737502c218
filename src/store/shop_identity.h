#pragma once
// The shop's identity as documents and reports print it.
#include <array>
#include <string>

namespace mz::store {

// Columns A1 to A6 of the shop's one row (name, telephone, two address
// lines, two end lines); blank when the file has no row.
using ShopIdentity = std::array<std::string, 6>;
ShopIdentity shop_identity();

}  // namespace mz::store
