#pragma once
// The sales of a period as the day closing reads them: each sale counted
// once at its whole value (its lines repeat it), summed by payment form and
// by seller; and the accounts' amounts of a period by type and by remark.
#include <map>
#include <string>
#include <vector>

#include "core/value.h"

namespace mz::finance::contas {

using Sums = std::map<std::string, Currency>;

struct Sales {
  Sums by_form, by_seller;
  Currency total;
};
// `from` and `to` are date literals, month first. Lines of one sale that
// agree in every header column count once.
Sales sales_between(const std::string& from, const std::string& to);

// Amounts of CADA whose date of movement D2 lies in the period, whatever
// their operation and status, by D7 (the payment form of a sale) and by D8.
Sums accounts_by_type(const std::string& from, const std::string& to);
Sums accounts_by_remark(const std::string& from, const std::string& to);

// A sum of the map, "0,00" when the name has none.
Currency sum_of(const Sums& sums, const std::string& name);

// The names of an option list (A1.mdb, A2.mdb), in order.
std::vector<std::string> option_names(const char* file);

struct Seller {
  std::string name, rate;  // x2, and x9 as typed (percent)
};
std::vector<Seller> sellers();

}  // namespace mz::finance::contas
