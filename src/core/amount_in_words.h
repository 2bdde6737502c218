#pragma once
// Amounts in Portuguese words, for receipts, promissory notes and trade bills.
#include <string>
#include <string_view>

namespace mz {

// The amount as "#########.00" formats it ("1234,56", ",50"); "" gives "".
// The phrase keeps the old routine's forms: "Hum mil,cem reais.",
// "Hum mil, reais.", a leading blank below one real.
std::string amount_in_words(std::string_view amount);

}  // namespace mz
