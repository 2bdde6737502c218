// The module menus: radio options, a go-ahead button and Volta.
#include "shell/screens.h"

namespace mz::shell {
namespace {

using ui::ControlKind;

struct Option {
  const char* name;
  const char* text;
  const char* target;
  const char* gate;  // the gate's code, or nullptr when the target opens directly
};

std::unique_ptr<ui::Form> make_menu(ui::Runtime& rt, const char* name, const char* caption, const char* go_ahead,
                                    std::vector<Option> options) {
  auto form = std::make_unique<ui::Form>(rt, name, caption);
  ui::Form& f = *form;
  f.add("Label1", ControlKind::Label, "Marque a opção desejada e clique em avançar:");
  for (const auto& o : options) f.add(o.name, ControlKind::OptionButton, o.text).enter_moves_on = true;
  // The options are tested in the menu's fixed order; the first one set opens.
  f.add(go_ahead, ControlKind::Button, "Avançar").on_click = [&rt, &f, options] {
    for (const auto& o : options) {
      if (!f[o.name].checked()) continue;
      if (o.gate) open_guarded(rt, o.gate);
      else show_waiting(rt, o.target);
      return;
    }
  };
  std::string menu = name;
  f.add("Command5", ControlKind::Button, "Volta").on_click = [&rt, menu] { rt.close(menu); };
  f.on_load = [&rt, &f] { rt.centre(f); };
  return form;
}

}  // namespace

std::unique_ptr<ui::Form> make_opera1(ui::Runtime& rt) {
  return make_menu(rt, "opera1", "Menu - Cadastros", "Command1",
                   {{"Option6", "01> CADASTRO DA GRADE", "GRADE", "A4"},
                    {"Option1", "02> CADASTRO DE PRODUTOS", "PRODUTO", "A19"},
                    {"Option2", "03> CADASTRO DE CLIENTES", "Cadastro", "A2"},
                    {"Option3", "04> CADASTRO DE FORNECEDORES", "FORNE", nullptr},
                    {"Option4", "05> CADASTRO DE FUNCIONÁRIOS", "SALACAD", nullptr}});
}

std::unique_ptr<ui::Form> make_opera2(ui::Runtime& rt) {
  return make_menu(rt, "OPERA2", "Menu - Financeiro", "Command1",
                   {{"Option4", "01> CAIXA", "CAIXA", nullptr},
                    {"Option11", "02> DUPLICATA", "DUPLI", nullptr},
                    {"Option2", "03> NOTA PROMISSÓRIA", "NP", nullptr},
                    {"Option3", "04> RECIBO AVULSO", "RECIBO", nullptr},
                    {"Option1", "05> CONTAS", "Contas", "A7"}});
}

std::unique_ptr<ui::Form> make_opera(ui::Runtime& rt) {
  return make_menu(rt, "OPERA", "Menu - Operacional", "Command7",
                   {{"Option2", "01> CADASTRO DA LOJA", "EMPRE", nullptr},
                    {"Option1", "02> PESQUISA ESTOQUE", "CONSULTA", nullptr},
                    {"Option3", "03> AGENDA DE TELEFONE", "TELEFONE", nullptr},
                    {"Option4", "04> MOVIMENTAÇÃO DE ESTOQUE", "ENTRADA", "A6"},
                    {"Option5", "05> BACKUP DE DADOS", "AUTO", nullptr},
                    {"Option6", "06> MANUTENÇÃO NA BASE DE DADOS", "REPARA", nullptr},
                    {"Option7", "06> SENHAS DE ACESSO", "CADSENHA", nullptr},
                    {"Option9", "09> ALTERA LAYOUT", "lay", nullptr}});
}

std::unique_ptr<ui::Form> make_menudp(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "MENUDP", "Menu Documentos");
  ui::Form& f = *form;
  f.add("Label1", ControlKind::Label, "Clique em um dos botões abaixo:");
  f.add("Command1", ControlKind::Button, "Nota promissória").on_click = [&rt] { rt.show("NP"); };
  f.add("Command2", ControlKind::Button, "Duplicata").on_click = [&rt] { rt.show("DUPLI"); };
  f.add("Command3", ControlKind::Button, "Recibo").on_click = [&rt] { rt.show("RECIBO"); };
  f.add("Command5", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("MENUDP"); };
  return form;
}

}  // namespace mz::shell
