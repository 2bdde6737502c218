// CADSENHA: the row of module passwords, opened with the main password.
#include "shell/screens.h"
#include "store/database.h"

namespace mz::shell {

using ui::ControlKind;

namespace {

struct PasswordField {
  const char* name;
  const char* caption;
};
// In the screen's order of entry.
constexpr PasswordField kFields[] = {
    {"A1", "SENHA PRINCIPAL"},
    {"A2", "SENHA PARA CADASTRO DE CLIENTES.............."},
    {"A5", "CONSULTAS"},
    {"A8", "BANCOS"},
    {"A3", "SENHA PARA  VENDAS....................................."},
    {"A6", "SENHA PARA MOVIMENTAÇÃO DE ESTOQUE...."},
    {"A9", "FECHA O.S."},
    {"A4", "SENHA PARA CADASTRO DE GRADE..............."},
    {"A7", "SENHA PARA O CAIXA....................................."},
    {"A10", "ESTOQUE"},
    {"A11", "SENHA DE ACESSO"},
    {"A19", "SENHA PARA CADASTRO DE PRODUTOS........."},
    {"A20", "DUPLICATA"},
};

}  // namespace

std::unique_ptr<ui::Form> make_cadsenha(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "CADSENHA", "Cadastro de Senhas");
  ui::Form& f = *form;
  for (const auto& field : kFields) {
    f.add(std::string("L") + field.name, ControlKind::Label, field.caption);
    f.add(field.name, ControlKind::TextBox);
  }
  f.add("Text1", ControlKind::TextBox).visible = false;
  // The main password as typed, not upper-cased, opens the other fields.
  f["A1"].on_key_press = [&rt, &f](int& key) {
    if (key != 13 || f["A1"].text().empty()) return;
    store::Recordset rs = password_row();
    if (f["A1"].text() != rs["A1"].text()) {
      rt.message("Senha não cadastrada.");
      f["A1"].set_text("");
      return;
    }
    f["Text1"].set_text("OK");
    for (const auto& field : kFields)
      if (std::string(field.name) != "A1") f[field.name].set_text(rs[field.name].text());
  };
  auto grava = [&rt, &f] {
    store::Recordset rs = password_row();
    if (f["Text1"].text() != "OK") {
      rt.message(" Acesso não autorizado.");
      return;
    }
    rs.edit();
    for (const auto& field : kFields) rs[field.name] = f[field.name].text();
    rs.update();
    rt.message("Operação confirmada com sucesso.");
  };
  auto volta = [&rt] { rt.close("CADSENHA"); };
  ui::add_action(f, "Command16", "sdfds", "Grava", grava);
  ui::add_action(f, "Command7", "sdfsdf", "Volta", volta);
  f.on_load = [&rt, &f] { rt.centre(f); };
  return form;
}

}  // namespace mz::shell
