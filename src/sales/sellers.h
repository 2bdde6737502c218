#pragma once
// The sellers a sale can name: the employees' names, in order.
#include <string>
#include <vector>

namespace mz::sales {

std::vector<std::string> seller_names();

}  // namespace mz::sales
