#pragma once
// "02- Estorno": a recalled sale taken out of VENDA.MDB, VENDA1.MDB and the
// accounts, with one settled marker row of value 0 left in its place.
#include <string>

#include "core/value.h"
#include "ui/runtime.h"

namespace mz::sales {

// What the marker row takes from the screen.
struct Reversal {
  std::string number;  // CODIGO
  std::string ven;     // seller
  std::string k4;      // payment form
  std::string c1;      // customer
  std::string a2;      // the hidden field A2, the name of size slot 2
};

// Deletes the sale's lines, closing rows and accounts and writes the marker,
// all in one unit: a failure anywhere leaves every file as it was. The cash
// book keeps the sale's credit.
void reverse_sale(const Reversal& sale, const Date& today);

namespace venda {

// The button: the question, the reversal, and the list refreshed.
void reverse_recalled_sale(ui::Runtime& rt, ui::Form& f);

}  // namespace venda
}  // namespace mz::sales
