#pragma once
// A control of a screen: its state (text, selection, colours, items, cells)
// and the handlers attached to its events. The runtime moves the focus and
// delivers the events; the front end only draws the state.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace mz::ui {

class Form;

enum class ControlKind {
  TextBox, MaskedBox, ComboBox, ListBox, OptionButton, CheckBox, Label, Button, MenuItem, Grid, BoundGrid, Tabs, Image
};

// What a field does to its own text when the focus leaves it.
enum class LeaveRule { None, Date, Money };

// The page of a control that stands beside the tabs, not on one of them.
inline constexpr int kOutsideTabs = -1;

inline constexpr uint32_t kWhite = 0xFFFFFF;
inline constexpr uint32_t kFocusColour = 0xC0FFFF;  // blue-green-red: a pale yellow

// Cells of a flex grid, row 0 being the heading.
struct GridCells {
  int rows = 1, cols = 1, fixed_rows = 1, fixed_cols = 0;
  int row = 0, col = 0;
  std::vector<std::string> text;
  std::vector<uint32_t> colour;

  void resize(int new_rows, int new_cols);
  std::string& cell(int r, int c);
  const std::string& cell(int r, int c) const;
  uint32_t& cell_colour(int r, int c);
};

class Control {
 public:
  Control(Form& form, std::string name, ControlKind kind, std::string text);

  Form& form() const { return form_; }
  const std::string& name() const { return name_; }
  ControlKind kind() const { return kind_; }

  const std::string& text() const { return text_; }
  // Fires Change when the text differs.
  void set_text(std::string text);
  size_t sel_start = 0, sel_length = 0;  // in characters
  std::string mask;
  LeaveRule leave_rule = LeaveRule::None;
  uint32_t back_colour = kWhite;
  bool enabled = true;
  bool visible = true;
  bool tab_stop = true;
  bool enter_moves_on = false;  // Enter acts as Tab
  bool multi_line = false;      // a notes box: Enter starts a new line, Tab leaves
  std::string group;            // option buttons of one group exclude each other
  int page = 0;                 // the tab page the control lies on, on a screen with tabs;
                                // kOutsideTabs for one shown whatever page is in front
  int shortcut = 0;             // a menu item's F-key (its key code), 0 for none
  bool bold = false;            // headings and titles
  // Controls of one named block (the size slots) are drawn as a compact
  // block, each caption above its field, ten a row.
  std::string block;
  // The size a picture is drawn at, in pixels; 0 for the usual size.
  int picture_size = 0;
  // A combo whose handler asks for its list to drop down (the old "%{DOWN}").
  bool dropped_down = false;
  // A grid whose data cells take typing in place; leaving a cell fires Change.
  bool editable_cells = false;
  // The help text shown while the pointer rests on the control.
  std::string tooltip;

  bool checked() const { return checked_; }
  void set_checked(bool on);  // an option clears the others of its group

  std::vector<std::string> items;
  int list_index = -1;
  void set_list_index(int index);  // the text follows the chosen item

  GridCells grid;
  // A grid bound to a query (the Data control): the file and the statement.
  std::string database_name, record_source;

  std::function<void()> on_got_focus, on_lost_focus, on_click, on_dbl_click, on_change;
  std::function<void(int& key)> on_key_press;
  std::function<void(int& key, int shift)> on_key_down;

  // Text, masked and combo boxes: they take typing and the focus colour.
  bool is_entry() const;
  bool can_take_focus() const;

 private:
  Form& form_;
  std::string name_;
  ControlKind kind_;
  std::string text_;
  bool checked_ = false;
};

// Typing into a masked box: the character goes to the next place of the
// mask, or is refused (false) when the place does not take it or the mask is
// full. The literals of the mask ("/" in "##/##/####") come by themselves.
bool type_masked(Control& box, char32_t ch);
// Backspace in a masked box: the last typed character goes, with the
// literals before it.
void erase_masked(Control& box);

// Type-ahead in a combo of names: the typed prefix completes to the first
// item that starts with it, the proposed tail selected; the key is consumed.
void combo_inteligente(Control& combo, int& key);
// Bands the data rows whose parity differs from `phase` with `colour`.
void zebra_grid(Control& grid, int phase, uint32_t colour);

}  // namespace mz::ui
