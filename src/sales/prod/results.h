#pragma once
// What Prod shows of a period: the lines, the products with their cost and
// result, the ranking, and the sales as they were charged.
#include <string>
#include <unordered_map>
#include <vector>

#include "sales/prod/period.h"

namespace mz::sales::prod {

using Rows = std::vector<std::vector<std::string>>;

// Each line of the period: its value (unit price × quantity), number,
// product, date, customer, seller, payment form.
Rows line_rows(const Period& p);

// The cost E7 of every reference, read once; a reference missing from
// GRUPO costs 0.
class Costs {
 public:
  Costs();
  Currency of(const std::string& reference) const;

 private:
  std::unordered_map<std::string, Currency> cost_;
};

struct ProductTotals {
  Rows rows;
  Currency cost;   // cost × quantity
  Currency sales;  // unit price × quantity, before any discount
};

// The products sold in the period, grouped by line text, price, reference
// and size; with `reference`, only that reference's, sale by sale.
ProductTotals product_totals(const Period& p, const Costs& costs, const std::string* reference = nullptr);

// The references by quantity sold, through the work table tmp of TMPK.MDB.
Rows ranking(const Period& p);

// The sales' totals after discount, each sale once.
Currency charged_total(const Period& p);

}  // namespace mz::sales::prod
