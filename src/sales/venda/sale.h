#pragma once
// A sale as it stands on VENDA's screen. Recording and every print of a sale
// work from what the screen shows, not from the stored rows, so they take
// this one picture of it.
#include <array>
#include <string>
#include <vector>

namespace mz::ui {
class Form;
}

namespace mz::sales {

struct SaleOnScreen {
  std::string codigo;  // label CODIGO: the number, empty until recorded
  std::string c1, c2, c3;  // customer, telephone, document
  std::string ven;         // seller
  std::string k1, k4, k5;  // due date text, payment form, number of instalments
  std::string w1, w2, w3, w4, w5, w6;  // sub total, discount as typed, total, paid, change, balance
  std::string a2;  // the hidden field A2: the name of size slot 2
  // Grid1 rows below the heading: quantity, ">" + code + "-" + description,
  // size name, unit price, line value.
  std::vector<std::array<std::string, 5>> items;
  // Grid3 rows below the heading: number, due date, value, K3's choice,
  // payment form. Empty when the sale has no instalment lines.
  std::vector<std::array<std::string, 5>> instalments;
};

// Reads the sale from the controls of VENDA.
SaleOnScreen read_sale(const ui::Form& venda);

}  // namespace mz::sales
