#include "ui/control.h"

#include "core/text.h"
#include "ui/form.h"

namespace mz::ui {

void GridCells::resize(int new_rows, int new_cols) {
  std::vector<std::string> cells(static_cast<size_t>(new_rows * new_cols));
  std::vector<uint32_t> colours(cells.size(), kWhite);
  for (int r = 0; r < std::min(rows, new_rows); ++r)
    for (int c = 0; c < std::min(cols, new_cols); ++c) {
      if (static_cast<size_t>(r * cols + c) >= text.size()) continue;
      cells[static_cast<size_t>(r * new_cols + c)] = text[static_cast<size_t>(r * cols + c)];
      colours[static_cast<size_t>(r * new_cols + c)] = colour[static_cast<size_t>(r * cols + c)];
    }
  rows = new_rows;
  cols = new_cols;
  text = std::move(cells);
  colour = std::move(colours);
}

std::string& GridCells::cell(int r, int c) {
  if (text.size() != static_cast<size_t>(rows * cols)) resize(rows, cols);
  return text.at(static_cast<size_t>(r * cols + c));
}

const std::string& GridCells::cell(int r, int c) const { return text.at(static_cast<size_t>(r * cols + c)); }

uint32_t& GridCells::cell_colour(int r, int c) {
  if (colour.size() != static_cast<size_t>(rows * cols)) resize(rows, cols);
  return colour.at(static_cast<size_t>(r * cols + c));
}

Control::Control(Form& form, std::string name, ControlKind kind, std::string text)
    : form_(form), name_(std::move(name)), kind_(kind), text_(std::move(text)) {
  tab_stop = kind != ControlKind::Label && kind != ControlKind::Image && kind != ControlKind::MenuItem;
  enter_moves_on = is_entry();
  grid.resize(grid.rows, grid.cols);
}

void Control::set_text(std::string text) {
  if (text == text_) return;
  text_ = std::move(text);
  if (on_change) on_change();
}

void Control::set_checked(bool on) {
  if (on && kind_ == ControlKind::OptionButton)
    for (const auto& other : form_.controls())
      if (other.get() != this && other->kind() == ControlKind::OptionButton && other->group == group)
        other->checked_ = false;
  checked_ = on;
}

void Control::set_list_index(int index) {
  list_index = index;
  if (index >= 0 && static_cast<size_t>(index) < items.size()) set_text(items[static_cast<size_t>(index)]);
}

bool Control::is_entry() const {
  return kind_ == ControlKind::TextBox || kind_ == ControlKind::MaskedBox || kind_ == ControlKind::ComboBox;
}

bool Control::can_take_focus() const {
  return enabled && visible && tab_stop && kind_ != ControlKind::Label && kind_ != ControlKind::Image &&
         kind_ != ControlKind::MenuItem;
}

namespace {

bool is_placeholder(char m) { return m == '#' || m == '0' || m == '9' || m == '?' || m == 'A' || m == '&'; }

bool place_takes(char m, char32_t ch) {
  bool digit = ch >= '0' && ch <= '9';
  bool letter = (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z') || ch >= 0xC0;
  if (m == '#' || m == '0' || m == '9') return digit;
  if (m == '?') return letter;
  if (m == 'A') return digit || letter;
  return ch >= 32;
}

// The typed characters of a masked text, without the mask's literals.
std::u32string typed_of(const std::string& mask, const std::string& text) {
  std::u32string chars = to_u32(text), typed;
  for (size_t i = 0; i < chars.size() && i < mask.size(); ++i)
    if (is_placeholder(mask[i])) typed += chars[i];
  return typed;
}

// Lays typed characters into the mask; literals only between them.
std::string lay_out(const std::string& mask, const std::u32string& typed) {
  std::u32string out;
  size_t next = 0;
  for (size_t i = 0; i < mask.size() && next < typed.size(); ++i)
    out += is_placeholder(mask[i]) ? typed[next++] : static_cast<char32_t>(mask[i]);
  return to_utf8(out);
}

}  // namespace

bool type_masked(Control& box, char32_t ch) {
  // A selection over the whole text is typed over, as in any field.
  std::string before = box.sel_length > 0 && box.sel_start == 0 ? std::string() : box.text();
  std::u32string typed = typed_of(box.mask, before);
  size_t place = 0, seen = 0;
  for (; place < box.mask.size(); ++place)
    if (is_placeholder(box.mask[place]) && seen++ == typed.size()) break;
  if (place >= box.mask.size() || !place_takes(box.mask[place], ch)) return false;
  typed += ch;
  box.set_text(lay_out(box.mask, typed));
  box.sel_start = len(box.text());
  box.sel_length = 0;
  return true;
}

void erase_masked(Control& box) {
  std::u32string typed = box.sel_length > 0 && box.sel_start == 0 ? std::u32string() : typed_of(box.mask, box.text());
  if (!typed.empty() && !(box.sel_length > 0 && box.sel_start == 0)) typed.pop_back();
  box.set_text(lay_out(box.mask, typed));
  box.sel_start = len(box.text());
  box.sel_length = 0;
}

void combo_inteligente(Control& combo, int& key) {
  if (key < 32) return;
  std::string prefix = left(combo.text(), combo.sel_start) + from_code_point(static_cast<char32_t>(key));
  std::string wanted = ucase(prefix);
  size_t wanted_len = len(prefix);
  for (size_t i = 0; i < combo.items.size(); ++i) {
    if (ucase(left(combo.items[i], wanted_len)) != wanted) continue;
    combo.set_list_index(static_cast<int>(i));
    combo.sel_start = wanted_len;
    combo.sel_length = len(combo.items[i]) - wanted_len;
    key = 0;
    return;
  }
}

void zebra_grid(Control& grid, int phase, uint32_t colour) {
  GridCells& g = grid.grid;
  for (int r = g.fixed_rows; r < g.rows; ++r)
    for (int c = g.fixed_cols; c < g.cols; ++c) g.cell_colour(r, c) = (r % 2 != phase % 2) ? colour : kWhite;
}

}  // namespace mz::ui
