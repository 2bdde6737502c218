#pragma once
// What Prod shows of a period: the lines, the products with their cost and
// result, the ranking, and the sales as they were charged. The period's
// lines are read once and every list is made from them.
#include <string>
#include <unordered_map>
#include <vector>

#include "sales/prod/period.h"

namespace mz::sales::prod {

using Rows = std::vector<std::vector<std::string>>;

// A sold line with the sale's header columns it repeats.
struct Line {
  Value qtda, v3, codigo, v1, data, nome, vendedor, pagamento, valor, referencia, v2;
};

// The lines of the period, in date order; with `reference`, only those of
// the references it matches (a Like pattern).
std::vector<Line> period_lines(const Period& p, const std::string* reference = nullptr);

// Each line: its value (unit price × quantity), number, product, date,
// customer, seller, payment form.
Rows line_rows(const std::vector<Line>& lines);

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

// The products grouped by line text, price, reference and size, and with
// `by_sale` sale by sale.
ProductTotals product_totals(const std::vector<Line>& lines, const Costs& costs, bool by_sale = false);

// The references by quantity sold, through the work table tmp of TMPK.MDB.
Rows ranking(const std::vector<Line>& lines);

// The sales' totals after discount, each sale once.
Currency charged_total(const std::vector<Line>& lines);

}  // namespace mz::sales::prod
