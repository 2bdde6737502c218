#include "documents/fields.h"

#include "core/amount_in_words.h"
#include "core/format.h"
#include "core/input_helpers.h"
#include "core/regional.h"
#include "core/text.h"
#include "store/sql_text.h"

namespace mz::documents {

namespace {
constexpr uint32_t kBand = 0xFFF0E0;  // a pale blue, blue-green-red
}

ui::Control& add_field(ui::Form& form, const std::string& name, ui::ControlKind kind, const std::string& caption) {
  if (!caption.empty()) form.add("L" + name, ui::ControlKind::Label, caption);
  return form.add(name, kind);
}

void name_combo(ui::Control& combo, std::vector<std::string> names) {
  combo.items = std::move(names);
  combo.on_key_press = [&combo](int& key) { ui::combo_inteligente(combo, key); };
}

void money_field(ui::Control& field, std::function<void()> after_leaving) {
  field.leave_rule = ui::LeaveRule::Money;
  field.on_key_press = [&field](int& key) { key = static_cast<int>(so_numero(field.text(), static_cast<char32_t>(key))); };
  field.on_lost_focus = [&field, after_leaving = std::move(after_leaving)] {
    if (!parse_money(field.text())) field.set_text("0,00");
    if (after_leaving) after_leaving();
  };
}

void date_field(ui::Control& field) {
  field.mask = "##/##/####";
  field.leave_rule = ui::LeaveRule::Date;
}

void number_field(ui::Control& field) {
  field.on_key_press = [](int& key) {
    if (key >= 32 && !(key < 128 && is_digit(static_cast<char>(key)))) key = 0;
  };
}

std::string amount_words(const std::string& amount) { return amount_in_words(format(Value(amount), "#########.00")); }

std::string money_text(const Value& value) { return value.is_null() ? std::string() : format(value, "###,##0.00"); }

Value column_value(const std::string& text) { return text.empty() ? Value() : Value(text); }

std::string today_text(ui::Runtime& rt) { return format(Value(rt.host().today()), "dd/mm/yyyy"); }

Date period_bound(ui::Runtime& rt, ui::Control& field) {
  field.set_text(date_field_rule(field.text(), rt.host().today()));
  return Value(field.text()).to_date();
}

std::string period_where(ui::Runtime& rt, ui::Control& from, ui::Control& to, const std::string& column) {
  period_bound(rt, from);
  period_bound(rt, to);
  Date today = rt.host().today();
  return "where " + column + " between #" + store::data_sql(from.text(), today) + "# and #" +
         store::data_sql(to.text(), today) + "#";
}

void show_rows(ui::Control& grid, const std::vector<std::string>& heading,
               const std::vector<std::vector<std::string>>& rows) {
  ui::GridCells& g = grid.grid;
  g.fixed_rows = 1;
  g.fixed_cols = 0;
  g.rows = static_cast<int>(rows.size()) + 1;
  g.cols = static_cast<int>(heading.size());
  g.text.assign(static_cast<size_t>(g.rows * g.cols), "");
  g.colour.assign(g.text.size(), ui::kWhite);
  for (int c = 0; c < g.cols; ++c) g.cell(0, c) = heading[static_cast<size_t>(c)];
  for (int r = 1; r < g.rows; ++r)
    for (int c = 0; c < g.cols; ++c) g.cell(r, c) = rows[static_cast<size_t>(r - 1)][static_cast<size_t>(c)];
  g.row = g.rows > 1 ? 1 : 0;
  g.col = 0;
  ui::zebra_grid(grid, 1, kBand);
}

std::string chosen_key(const ui::Control& grid) {
  const ui::GridCells& g = grid.grid;
  if (g.row < g.fixed_rows || g.row >= g.rows) return {};
  return g.cell(g.row, 0);
}

}  // namespace mz::documents
