#include "stock/forne/navigation.h"

#include <string>

#include "stock/forne/card.h"
#include "stock/forne/contacts.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::stock::forne {

using ui::ControlKind;

namespace {

enum class Move { First, Previous, Next, Last };

// The supplier the move lands on, asked of the code index directly.
std::string neighbour(Move move, const std::string& code) {
  switch (move) {
    case Move::First: return "SELECT TOP 1 * FROM CLI ORDER BY A1";
    case Move::Last: return "SELECT TOP 1 * FROM CLI ORDER BY A1 DESC";
    case Move::Next: return "SELECT TOP 1 * FROM CLI where a1 > " + store::sql_quote(code) + " ORDER BY a1";
    case Move::Previous: return "SELECT TOP 1 * FROM CLI where a1 < " + store::sql_quote(code) + " ORDER BY a1 DESC";
  }
  return {};
}

// Nothing without a card on screen. A step from a card that is no longer on
// file starts again at the first; past either end the card stays.
void go(ui::Runtime& rt, ui::Form& f, Move move) {
  std::string code = f["A1"].text();
  if (code.empty()) return;
  rt.wait_pointer(true);
  store::Database db;
  ui::resume_style([&] { db = suppliers(); });
  if (move == Move::Next || move == Move::Previous)
    ui::resume_style([&] {
      if (supplier_row(db, code).eof()) move = Move::First;
    });
  store::Recordset rs;
  bool found = false;
  ui::resume_style([&] {
    rs = db.open_recordset(neighbour(move, code));
    found = !rs.eof();
  });
  if (found) {
    ui::resume_style([&] { show_supplier(f, rs); });
    ui::resume_style([&] { load_contacts(f["Grid1"], f["A1"].text()); });
  }
  rt.wait_pointer(false);
}

}  // namespace

void add_navigation(ui::Runtime& rt, ui::Form& f) {
  f.add("Command9", ControlKind::Button, "Primeiro").on_click = [&rt, &f] { go(rt, f, Move::First); };
  f.add("Command10", ControlKind::Button, "Volta").on_click = [&rt, &f] { go(rt, f, Move::Previous); };
  f.add("Command11", ControlKind::Button, "Avança").on_click = [&rt, &f] { go(rt, f, Move::Next); };
  f.add("Command12", ControlKind::Button, "Último").on_click = [&rt, &f] { go(rt, f, Move::Last); };
}

}  // namespace mz::stock::forne
