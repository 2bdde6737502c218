#pragma once
// Stock is never stored: a balance is the inflow ledger less the sales and
// the outflow ledger, summed each time it is asked for.
#include <array>
#include <map>
#include <string>
#include <string_view>

namespace mz::stock {

inline constexpr int kSlots = 50;

// The balance of every slot of a reference; slot n is element n - 1.
std::array<double, kSlots> slot_balances(std::string_view reference);
// The balance of a reference by the stored piece counts of its rows.
double reference_balance(std::string_view reference);
// reference_balance of every reference that has a row in any ledger.
std::map<std::string, double> all_reference_balances();

}  // namespace mz::stock
