#pragma once
// The record filter a screen hands to a report, in the forms the screens
// compose: equality on a text column, "{CADA.CODIGO} = '0001'", and a date
// period, "{reci.r4} >= Date (2026,11,1) and  {reci.r4} <= Date (2026,11,30)".
// An empty formula selects every row.
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"

namespace mz::print {

class Selection {
 public:
  // Throws Error 3075 on a formula it cannot read. A quoted value is taken
  // whole, apostrophes and all, since the screens do not escape them.
  static Selection parse(std::string_view formula);

  // field(column) gives the row's value of a column, by its name without the table.
  bool matches(const std::function<Value(const std::string&)>& field) const;
  bool selects_all() const { return conditions_.empty(); }

  struct Condition {
    std::string column;  // lower case, without the table
    std::string op;      // =, <>, <, <=, >, >=
    Value value;         // text or date
  };
  const std::vector<Condition>& conditions() const { return conditions_; }

 private:
  std::vector<Condition> conditions_;  // all must hold
};

}  // namespace mz::print
