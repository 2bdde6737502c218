#pragma once
// VENDA's search tab: the sales of a period, of a seller or of a customer in
// Grid4, a sale recalled to the screen by its number, and the summary print.
#include <string>

#include "ui/runtime.h"

namespace mz::sales::venda {

inline constexpr int kSearchPage = 2;

void add_search_tab(ui::Runtime& rt, ui::Form& f);

// The tab's part of the screen's load: the dates first, then the list, the
// sellers and the customers, as the load interleaves them.
void load_search_dates(ui::Runtime& rt, ui::Form& f);
void load_search_list(ui::Form& f);
void load_search_sellers(ui::Form& f);
void load_search_customers(ui::Form& f);

// Command6: every sale of the period T1 to T2, one row a sale.
void search_period(ui::Runtime& rt, ui::Form& f);

// The sale of this number on the screen, its lines in Grid1 and its closing
// in Grid3, then the closing tab. From Grid4 the last column of Grid3 takes
// the closing row's K4, from "01- Busca ticket" its K5.
enum class RecallFrom { List, Ticket };
void recall_sale(ui::Runtime& rt, ui::Form& f, const std::string& number, RecallFrom from);

}  // namespace mz::sales::venda
