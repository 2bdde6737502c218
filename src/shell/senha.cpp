// SENHA: a complete entry gate that no screen opens; kept available.
#include "core/text.h"
#include "shell/screens.h"
#include "store/database.h"

namespace mz::shell {

using ui::ControlKind;

namespace {

std::string entry_password() { return password_row()["A11"].text(); }

}  // namespace

std::unique_ptr<ui::Form> make_senha(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "SENHA", "Acesso");
  ui::Form& f = *form;
  f.add("Label1", ControlKind::Label, "SENHA DE ACESSO");
  f.add("Text1", ControlKind::TextBox);
  f.add("Command1", ControlKind::Button, "OK").on_click = [&rt, &f] {
    if (ucase(f["Text1"].text()) == entry_password()) {
      rt.show("INICIO");
      rt.close("SENHA");
      return;
    }
    rt.message("Acesso não autorizado.");
    f["Text1"].set_text("");
    rt.set_focus(f["Text1"]);
  };
  f.add("Command2", ControlKind::Button, "&CANCELA").on_click = [&rt] { rt.end_program(); };
  // A second copy is refused; an empty entry password lets everyone in at once.
  // (The old check for a two-digit year cannot fail: dates here always carry four.)
  f.on_activate = [&rt] {
    if (rt.host().previous_instance()) {
      rt.message("O software já está aberto. Se não conseguir entrar reinicie o computador.");
      rt.end_program();
      return;
    }
    if (!entry_password().empty()) return;
    rt.show("INICIO");
    rt.close("SENHA");
  };
  return form;
}

std::unique_ptr<ui::Form> make_msn(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "msn", "Suporte On-Line");
  ui::Form& f = *form;
  f.add("Label1", ControlKind::Label, "Atendimento das 09:00 às 12:00 e das 14:00 às 17:00 horas.");
  f.add("Label2", ControlKind::Label, "Você precisa estar conectado a internet para usar este serviço.");
  f.add("Text2", ControlKind::TextBox);
  f.add("WebBrowser1", ControlKind::Image).visible = false;
  f.add("Command1", ControlKind::Button, "Conectar").on_click = [&rt, &f] {
    f["WebBrowser1"].visible = true;
    f["WebBrowser1"].set_text(f["Text2"].text());
    rt.message("Aguarde alguns segundos para conectar.");
  };
  return form;
}

}  // namespace mz::shell
