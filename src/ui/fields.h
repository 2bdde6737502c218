#pragma once
// Field behaviours and grid filling shared by the entry screens.
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"
#include "ui/runtime.h"

namespace mz::ui {

// A field of a card: its name, which is also its column's, its caption and
// its kind; screens list their fields in the order of entry.
struct FieldEntry {
  std::string_view name;
  const char* caption;
  ControlKind kind;
};

// A field with its caption label before it ("L" + name), as the screens lay
// them out; an empty caption adds no label.
Control& add_field(Form& form, const std::string& name, ControlKind kind, const std::string& caption);
Control& add_field(Form& form, const FieldEntry& field);

// A combo of names that completes as the user types; free text is allowed.
void name_combo(Control& combo, std::vector<std::string> names);
// The largest amount a money field takes: sums and differences of such
// amounts stay well inside the currency range.
inline constexpr Currency kLargestMoney = Currency::from_units(999'999'999'999'99 * 100);
inline constexpr const char* kMoneyTooLarge = "Valor muito alto: o máximo é 999.999.999.999,99.";
// An amount past kLargestMoney either way; text that is no amount is not.
bool money_out_of_range(std::string_view text);
// Money: "," or "." once, digits and Backspace; a digit that would go past
// kLargestMoney is refused with kMoneyTooLarge. Left empty, or holding no
// amount (a lone ","), it becomes "0,00"; then `after_leaving` runs. Left
// past kLargestMoney, it says so and keeps the focus and the text.
void money_field(Control& field, std::function<void()> after_leaving = {});
// A "##/##/####" date; left invalid or empty, it takes today's date.
void date_field(Control& field);
// A document number or code: digits only.
void number_field(Control& field);

// A money column for the screen, "###,##0.00"; a null as "".
std::string money_text(const Value& value);
// What a field writes into a column: an empty field leaves a date or money
// column null (a text column gets "").
Value column_value(const std::string& text);
std::string today_text(Runtime& rt);
// A date field as stored: shaped with "00/00/0000".
std::string stored_date(const std::string& text);

// Fills a grid: the heading row, then the rows, striped.
void show_rows(Control& grid, const std::vector<std::string>& heading, const std::vector<std::vector<std::string>>& rows);
// The text of a data row's first cell, "" on the heading or past the rows.
std::string chosen_key(const Control& grid);

// The jump-style trap of the handlers that write customers, accounts and
// option lists: a row locked by another station shows "Operação não
// realizada."; any other failure leaves the handler silently. False when
// the work failed.
bool jump_style(Runtime& rt, const std::function<void()>& work);
// The resume-style trap of the handlers that run on after a failing
// statement: the statement is passed over and the handler goes on.
void resume_style(const std::function<void()>& statement);

}  // namespace mz::ui
