#pragma once
// What other screens read of the customer file.
#include <string>
#include <vector>

namespace mz::records {

// The customers' names in alphabetical order, for the lists of names.
std::vector<std::string> customer_names();

}  // namespace mz::records
