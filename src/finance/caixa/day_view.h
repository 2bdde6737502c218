#pragma once
// The day list and the figures of the cash screen.
#include <vector>

#include "finance/caixa/cash_book.h"
#include "ui/runtime.h"

namespace mz::finance::cash {

// Lists the lines and puts their debits and credits into A7 and A8.
void show_lines(ui::Form& f, const std::vector<Line>& lines);
// A9: today's credits less today's debits, whatever day is listed.
void show_day_balance(ui::Runtime& rt, ui::Form& f);
// AX: the result of every line ever written.
void show_general_balance(ui::Form& f);
// The view the screen opens with: today's lines and all four figures.
void carrega(ui::Runtime& rt, ui::Form& f);

// The text of a figure.
std::string figure_text(Currency amount);

}  // namespace mz::finance::cash
