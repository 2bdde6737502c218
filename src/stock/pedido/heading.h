#pragma once
// The first tab of PEDIDO: the order's number, date, customer, order number
// and representative, the three addresses, the payment form and the
// position.
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "store/database.h"
#include "ui/runtime.h"

namespace mz::stock::pedido {

inline constexpr int kHeadingPage = 0;
inline constexpr const char* kOpen = "ABERTO";
inline constexpr const char* kInvoiced = "FATURADO";

// Declares EE1..EE5 and B1..B24 on the first tab, with the customer look-up
// on leaving EE3. `leaving_number` runs on leaving EE1.
void add_heading(ui::Runtime& rt, ui::Form& f, std::function<void()> leaving_number);

// The opening's lists: customers and representatives from the customer
// cards by classification, the payment forms, the delivery forecasts.
void load_heading(ui::Form& f);

// Leaving EE3: the card of that name fills the addresses it holds.
void look_up_customer(ui::Form& f);

// F5: the input box that adds a payment form or offers one for deletion.
void maintain_payment_forms(ui::Runtime& rt, ui::Form& f);

// The heading columns every row of the order repeats besides CODIGO, NOME,
// DATA, TIPO and TOTAL: NR, TL, DES, EE5, B1..B24 and the size captions
// A1..A50 in force.
std::vector<std::pair<std::string, std::string>> repeated_columns(ui::Form& f);

// The heading of a recorded order from its first row.
void show_heading(ui::Form& f, store::Recordset& rs);

// B1..B24 empty, the position among them.
void clear_addresses(ui::Form& f);

}  // namespace mz::stock::pedido
