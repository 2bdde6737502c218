#include "finance/caixa/owner.h"

#include "shell/screens.h"

namespace mz::finance::cash {

void owner_erase(ui::Runtime& rt, const std::string& question, const std::function<void()>& erase) {
  std::optional<std::string> typed = rt.host().input_box("Digite a senha principal:", "Senha", "");
  if (!typed) return;
  store::Recordset rs = shell::password_row();
  if (rs.eof()) return;
  // The main password is compared as typed, as the password screen does.
  bool owner = *typed == rs["A1"].text();
  rs.close();
  if (!owner) return (void)rt.message("Acesso não autorizado.");
  if (rt.message(question, ui::Buttons::YesNo, ui::Icon::Question) == ui::Answer::Yes) erase();
}

}  // namespace mz::finance::cash
