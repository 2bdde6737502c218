#pragma once
// What the documents read from the shop's other files: the customers and
// their cards.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/customers.h"

namespace mz::documents {

using records::customer_names;

// A customer's address and document, as a document's fields take them.
struct CustomerCard {
  std::string address, district, city, state, postal_code, phone;
  std::string document;  // the CNPJ, or the CPF when there is no CNPJ
};
// The customer with exactly this name, if any.
std::optional<CustomerCard> find_customer(std::string_view name);

}  // namespace mz::documents
