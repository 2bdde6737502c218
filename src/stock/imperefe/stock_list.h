#pragma once
// The stock lists of the product register: every reference's whole balance
// written into IMESTO, the work table their reports print from.
#include <functional>

namespace mz::stock::imperefe {

enum class StockList {
  Valued,     // every reference, with its stock value at cost in RESU
  Purchases,  // only the references below their minimum, the minimum in RESU
};

// Empties IMESTO and writes the list's rows in reference order, as one
// unit; `counted` hears the number of rows written so far after each one.
void write_stock_list(StockList list, const std::function<void(int)>& counted);

}  // namespace mz::stock::imperefe
