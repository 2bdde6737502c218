#pragma once
// VENDA's items tab: scanning a code into a line of Grid1, taking a line
// back, the stock and the photo of a product, and clearing the sale.
#include <string>

#include "core/value.h"
#include "sales/money.h"
#include "ui/runtime.h"

namespace mz::sales::venda {

inline constexpr int kItemsPage = 0;
inline constexpr int kClosingPage = 1;

// Amounts on the screen: "###,##0.00" text read as fixed-point currency.
Currency amount(const std::string& text);

void add_items_tab(ui::Runtime& rt, ui::Form& f);
// The items tab's part of the screen's load: the price table, the quantity,
// the total, the grid; the size names come after it.
void load_items(ui::Form& f);

// Enter in GR: the product of the code's reference, its price and size.
void look_up(ui::Form& f);
// "Novo valor": the unit price of the next item looked up.
void ask_new_price(ui::Runtime& rt, ui::Form& f);
// "02- Ver estoque" and the picture button.
void show_stock(ui::Runtime& rt, ui::Form& f);
void show_photo(ui::Runtime& rt, ui::Form& f);
// "02- Nova venda".
void new_sale(ui::Runtime& rt, ui::Form& f);
// Brings the items tab up with the focus on GR.
void go_to_items(ui::Runtime& rt, ui::Form& f);

}  // namespace mz::sales::venda
