#include "finance/caixa/drawer.h"

#include "core/format.h"
#include "finance/caixa/cash_book.h"
#include "finance/caixa/day_view.h"
#include "ui/fields.h"

namespace mz::finance::cash {

using ui::ControlKind;

std::unique_ptr<ui::Form> make_drawer(ui::Runtime& rt, const Drawer& drawer) {
  auto form = std::make_unique<ui::Form>(rt, drawer.screen, drawer.caption);
  ui::Form& f = *form;
  ui::Control& value = ui::add_field(f, "A1", ControlKind::TextBox, drawer.value_caption);
  value.enter_moves_on = true;
  ui::money_field(value);
  f.add("Label2", ControlKind::Label, drawer.hint);
  f.add("Command28", ControlKind::Button, "01- CONFIRMA").on_click = [&rt, &f, drawer] {
    Date now = rt.host().now();
    // The document column of a drawer line holds the time of day.
    f["NN"].set_text(write_line({ui::today_text(rt), drawer.operation, format(Value(now), "hh:mm:ss"), "",
                                 f["A1"].text(), drawer.description, "", ""}));
    rt.close(drawer.screen);
    carrega(rt, rt.screen("CAIXA"));
  };
  f.add("NN", ControlKind::TextBox).visible = false;
  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["A1"].set_text("0,00");
  };
  return form;
}

}  // namespace mz::finance::cash
