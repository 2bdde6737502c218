#include "stock/psest.h"

#include <memory>
#include <vector>

#include "stock/screens.h"
#include "ui/fields.h"

namespace mz::stock {

using ui::ControlKind;

namespace {

const std::vector<std::string> kHeading = {"TAMANHO", "ESTOQUE"};

}  // namespace

void show_psest(ui::Runtime& rt, const std::string& reference, const std::array<std::string, kSlots>& captions) {
  if (reference.empty()) return;
  std::vector<std::vector<std::string>> lines;
  for (const SlotLine& line : slot_lines(reference, kSaleSizes))
    lines.push_back({captions[static_cast<size_t>(line.slot - 1)], quantity_text(line.balance)});
  ui::Form& f = rt.show("PSEST");
  ui::show_rows(f["Grid1"], kHeading, lines);
  rt.set_focus(f["FechaEnter"]);
}

std::unique_ptr<ui::Form> make_psest(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "PSEST", "Estoque");
  ui::Form& f = *form;
  ui::show_rows(f.add("Grid1", ControlKind::Grid), kHeading, {});
  f.add("FechaEnter", ControlKind::Button, "&FECHA (ENTER)").on_click = [&rt] { rt.close("PSEST"); };
  f.on_load = [&rt, &f] { rt.centre(f); };
  return form;
}

}  // namespace mz::stock
