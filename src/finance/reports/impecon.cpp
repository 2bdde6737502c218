// Impecon: the list of account reports; Enter on one opens the screen that
// asks for its period, with the report's title written in.
#include <memory>

#include "finance/report_screens.h"
#include "finance/reports/variants.h"
#include "ui/fields.h"
#include "ui/keys.h"

namespace mz::finance {

using ui::ControlKind;

namespace {

void open_choice(ui::Runtime& rt, const std::string& text) {
  reports::Choice choice = reports::choice_of(text);
  if (!choice.screen) return;
  rt.show(choice.screen);
  rt.screen(choice.screen)["TT"].set_text(choice.title);
}

}  // namespace

std::unique_ptr<ui::Form> make_impecon(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "Impecon", "Impressão");
  ui::Form& f = *form;
  f.add("Label1", ControlKind::Label, "Selecione a opção de impressão e tecle [ENTER]:");
  ui::Control& list = f.add("Combo1", ControlKind::ComboBox);
  for (const char* text : reports::kListed) list.items.push_back(text);
  list.on_got_focus = [&list] { list.dropped_down = true; };
  list.on_key_down = [&rt, &list](int& key, int) {
    if (key == ui::key::kEnter) open_choice(rt, list.text());
  };
  f.add("Label2", ControlKind::Label, "LIGUE A IMPRESSORA E COLOQUE O PAPEL.");
  f.add("SSCommand5", ControlKind::Button, "&Volta").on_click = [&rt] { rt.close("Impecon"); };
  f.on_load = [&rt, &f] { rt.centre(f); };
  return form;
}

}  // namespace mz::finance
