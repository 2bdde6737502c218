#pragma once
// What the sale reads of a customer when the name is left: the card and
// what is still owed.
#include <optional>
#include <string>

#include "core/value.h"

namespace mz::sales::venda {

struct CustomerCard {
  std::string phone;     // a4
  std::string document;  // a24, or a23 when that is empty
  bool blocked = false;  // D16 "SIM"
};

// The card of the customer of that exact name, if there is one.
std::optional<CustomerCard> find_customer(const std::string& name);
// The sum of the customer's open accounts to receive.
Currency customer_debt(const std::string& name);

}  // namespace mz::sales::venda
