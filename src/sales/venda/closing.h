#pragma once
// VENDA's closing tab: discount, amount paid, customer and seller, payment
// form and the instalment lines of Grid3.
#include <functional>

#include "ui/runtime.h"

namespace mz::sales::venda {

// The screen's own buttons of the tab come between its fields and Grid3.
void add_closing_tab(ui::Runtime& rt, ui::Form& f, const std::function<void()>& add_buttons);
// "04- Fechamento  ": the closing tab, the focus on the discount.
void go_to_closing(ui::Runtime& rt, ui::Form& f);

// The closing tab's lists, filled at the screen's load.
void fill_payment_forms(ui::Form& f);
void fill_sellers(ui::Form& f);
void fill_customers(ui::Form& f);
// The amounts at "0,00" and no instalment line.
void reset_amounts(ui::Form& f);

}  // namespace mz::sales::venda
