#pragma once
// Pieces shared by the document screens; the field behaviours they share
// with every entry screen come from ui/fields.
#include <string>

#include "core/value.h"
#include "ui/fields.h"
#include "ui/runtime.h"

namespace mz::documents {

using ui::add_field;
using ui::chosen_key;
using ui::column_value;
using ui::date_field;
using ui::money_field;
using ui::money_text;
using ui::name_combo;
using ui::number_field;
using ui::show_rows;
using ui::today_text;

using ui::FieldEntry;

// The amount as typed ("1.234,56") in Portuguese words, without brackets.
std::string amount_words(const std::string& amount);

// A bound of a period as typed; a text that is not a date stands for today,
// and the field shows it.
Date period_bound(ui::Runtime& rt, ui::Control& field);
// "where COLUMN between #...# and #...#" over two such bounds.
std::string period_where(ui::Runtime& rt, ui::Control& from, ui::Control& to, const std::string& column);

}  // namespace mz::documents
