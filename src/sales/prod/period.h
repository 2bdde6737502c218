#pragma once
// The period every list of sales is read over, and the period query: one
// row per sale, its header columns repeated on its lines grouped together.
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/value.h"
#include "sales/money.h"
#include "ui/runtime.h"

namespace mz::sales::prod {

// The two dates as the statements take them (month first, for # literals)
// and as the screen shows them.
struct Period {
  std::string from, to;
  std::string first_day, last_day;  // dd/mm/yyyy
  std::string between() const { return "DATA BETWEEN #" + from + "# AND #" + to + "#"; }
};

// The dates of two fields; a date that cannot be read becomes today, and an
// empty first date `empty_start` when one is given.
Period read_period(ui::Runtime& rt, ui::Form& f, const char* first, const char* last,
                   std::optional<std::string> empty_start = std::nullopt);

struct SaleRow {
  std::string codigo, data, nome, vendedor, pagamento;
  Value total;  // the sale's VALOR: its total, repeated on each of its lines
};

// The sales of the period, in number order; `column` and `value` keep only
// those whose column equals the value.
std::vector<SaleRow> period_sales(const Period& p, const char* column = nullptr, const std::string& value = {});

// A grid row of these texts, moved in rather than copied from a list.
template <typename... Texts>
std::vector<std::string> cells(Texts&&... texts) {
  std::vector<std::string> row;
  row.reserve(sizeof...(texts));
  (row.push_back(std::forward<Texts>(texts)), ...);
  return row;
}

// Money read from a column; a null or an unreadable text counts as 0.
Currency amount_of(const Value& v);

}  // namespace mz::sales::prod
