#include "ui/fields.h"

#include <algorithm>

#include "core/error.h"
#include "core/format.h"
#include "core/input_helpers.h"
#include "core/regional.h"
#include "core/text.h"
#include "store/connection.h"

namespace mz::ui {

namespace {

constexpr uint32_t kBand = 0xFFF0E0;  // a pale blue, blue-green-red

// The field's text once a character typed replaces its selection.
std::string typed_over(const Control& field, char32_t ch) {
  const std::string& text = field.text();
  const size_t start = std::min(field.sel_start, len(text));
  const size_t length = std::min(field.sel_length, len(text) - start);
  return left(text, start) + from_code_point(ch) + mid(text, start + length + 1);
}

}  // namespace

Control& add_field(Form& form, const std::string& name, ControlKind kind, const std::string& caption) {
  if (!caption.empty()) form.add("L" + name, ControlKind::Label, caption);
  return form.add(name, kind);
}

Control& add_field(Form& form, const FieldEntry& field) {
  return add_field(form, std::string(field.name), field.kind, field.caption);
}

void name_combo(Control& combo, std::vector<std::string> names) {
  combo.items = std::move(names);
  combo.on_key_press = [&combo](int& key) { combo_inteligente(combo, key); };
}

bool money_out_of_range(std::string_view text) {
  try {
    const std::optional<Currency> amount = parse_money(text);
    return amount && (*amount > kLargestMoney || *amount < -kLargestMoney);
  } catch (const Error&) {
    return true;  // past what a currency holds at all
  }
}

void money_field(Control& field, std::function<void()> after_leaving) {
  field.leave_rule = LeaveRule::Money;
  field.on_key_press = [&field](int& key) {
    key = static_cast<int>(so_numero(field.text(), static_cast<char32_t>(key)));
    // A digit that would take the amount past the largest is refused, and
    // said why: an F-key may record what stands in the field unchecked.
    if (key >= '0' && key <= '9' && money_out_of_range(typed_over(field, static_cast<char32_t>(key)))) {
      key = 0;
      field.form().runtime().message(kMoneyTooLarge, Buttons::Ok, Icon::Exclamation);
    }
  };
  field.on_lost_focus = [&field, after_leaving = std::move(after_leaving)] {
    // An amount past the largest that came from elsewhere (a stored row)
    // stays in the field for the clerk to mend; nothing is worked out from it.
    if (money_out_of_range(field.text())) {
      Runtime& rt = field.form().runtime();
      rt.set_focus(field);
      rt.message(kMoneyTooLarge, Buttons::Ok, Icon::Exclamation);
      return;
    }
    if (!parse_money(field.text())) field.set_text("0,00");
    if (after_leaving) after_leaving();
  };
}

void date_field(Control& field) {
  field.mask = "##/##/####";
  field.leave_rule = LeaveRule::Date;
}

void number_field(Control& field) {
  field.on_key_press = [](int& key) {
    if (key >= 32 && !(key < 128 && is_digit(static_cast<char>(key)))) key = 0;
  };
}

std::string money_text(const Value& value) { return value.is_null() ? std::string() : format(value, "###,##0.00"); }

Value column_value(const std::string& text) { return text.empty() ? Value() : Value(text); }

std::string today_text(Runtime& rt) { return format(Value(rt.host().today()), "dd/mm/yyyy"); }

std::string stored_date(const std::string& text) { return format(Value(text), "00/00/0000"); }

void show_rows(Control& grid, const std::vector<std::string>& heading, const std::vector<std::vector<std::string>>& rows) {
  GridCells& g = grid.grid;
  g.fixed_rows = 1;
  g.fixed_cols = 0;
  g.rows = static_cast<int>(rows.size()) + 1;
  g.cols = static_cast<int>(heading.size());
  g.text.assign(static_cast<size_t>(g.rows * g.cols), "");
  g.colour.assign(g.text.size(), kWhite);
  for (int c = 0; c < g.cols; ++c) g.cell(0, c) = heading[static_cast<size_t>(c)];
  for (int r = 1; r < g.rows; ++r)
    for (int c = 0; c < g.cols; ++c) g.cell(r, c) = rows[static_cast<size_t>(r - 1)][static_cast<size_t>(c)];
  g.row = g.rows > 1 ? 1 : 0;
  g.col = 0;
  zebra_grid(grid, 1, kBand);
}

std::string chosen_key(const Control& grid) {
  const GridCells& g = grid.grid;
  if (g.row < g.fixed_rows || g.row >= g.rows) return {};
  return g.cell(g.row, 0);
}

bool jump_style(Runtime& rt, const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const Error& e) {
    rt.wait_pointer(false);
    if (e.number() == store::dberr::kLocked) rt.message("Operação não realizada.");
    return false;  // the exit block reports only the lock
  }
}

void resume_style(const std::function<void()>& statement) {
  try {
    statement();
  } catch (const Error&) {
    // passed over: the next statement runs
  }
}

}  // namespace mz::ui
