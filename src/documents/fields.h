#pragma once
// Field behaviours and small pieces shared by the document screens.
#include <functional>
#include <string>
#include <vector>

#include "core/value.h"
#include "ui/runtime.h"

namespace mz::documents {

// A field of a document screen: its name, which is also its column's, its
// caption and its kind, in the screen's order of entry.
struct DocumentField {
  const char* name;
  const char* caption;
  ui::ControlKind kind;
};

// A field with its caption label before it ("L" + name), as the screens lay
// them out; an empty caption adds no label.
ui::Control& add_field(ui::Form& form, const std::string& name, ui::ControlKind kind, const std::string& caption);

// A combo of names that completes as the user types; free text is allowed.
void name_combo(ui::Control& combo, std::vector<std::string> names);
// Money: "," or "." once, digits and Backspace. Left empty, or holding no
// amount (a lone ","), it becomes "0,00"; then `after_leaving` runs.
void money_field(ui::Control& field, std::function<void()> after_leaving = {});
// A "##/##/####" date; left invalid or empty, it takes today's date.
void date_field(ui::Control& field);
// A document number: digits only.
void number_field(ui::Control& field);

// The amount as typed ("1.234,56") in Portuguese words, without brackets.
std::string amount_words(const std::string& amount);
// A money column for the screen, "###,##0.00"; a null as "".
std::string money_text(const Value& value);
// What a field writes into a column: an empty field leaves a date or money
// column null (a text column gets "").
Value column_value(const std::string& text);
std::string today_text(ui::Runtime& rt);

// A bound of a period as typed; a text that is not a date stands for today,
// and the field shows it.
Date period_bound(ui::Runtime& rt, ui::Control& field);
// "where COLUMN between #...# and #...#" over two such bounds.
std::string period_where(ui::Runtime& rt, ui::Control& from, ui::Control& to, const std::string& column);

// Fills a search grid: the heading row, then the rows, striped.
void show_rows(ui::Control& grid, const std::vector<std::string>& heading,
               const std::vector<std::vector<std::string>>& rows);
// The text of a data row's first cell, "" on the heading or past the rows.
std::string chosen_key(const ui::Control& grid);

}  // namespace mz::documents
