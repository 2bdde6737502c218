// EMPRE: the shop's identity, printed on every ticket and document.
#include "shell/screens.h"
#include "store/database.h"

namespace mz::shell {

using ui::ControlKind;

namespace {

store::Recordset identity_row() {
  return store::Workspace::open_database("\\EMPE.Mdb").open_recordset("SELECT* FROM EMPE ORDER BY A1");
}

// A value outside the list falls back to the list's first item.
void keep_within(ui::Control& field) {
  for (const auto& item : field.items)
    if (field.text() == item) return;
  field.set_text(field.items.front());
}

}  // namespace

std::unique_ptr<ui::Form> make_empre(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "EMPRE", "Cadastro da Loja");
  ui::Form& f = *form;
  f.add("Label1", ControlKind::Label, "IDENTIFICAÇÃO DA LOJA").bold = true;
  const std::pair<const char*, const char*> fields[] = {
      {"A1", "NOME:"}, {"A2", "TELEFONE:"}, {"A3", "ENDEREÇO:"}, {"A4", ""},
      {"A5", "MENSAGEM PARA O FINAL DA IMPRESSÃO DA VENDA."}, {"A6", ""}};
  for (const auto& [name, caption] : fields) {
    if (*caption) f.add(std::string("L") + name, ControlKind::Label, caption);
    f.add(name, ControlKind::TextBox);
  }
  f.add("LA10", ControlKind::Label, "IMPRESSORA LIGADA NA:");
  f.add("A10", ControlKind::ComboBox).items = {"LPT1", "USB"};
  f.add("LCOR", ControlKind::Label, "COR DA TELA INICIAL:");
  f.add("COR", ControlKind::ComboBox).items = {"VERDE", "AZUL", "PRETO", "ROSA"};
  auto grava = [&rt, &f] {
    keep_within(f["A10"]);
    keep_within(f["COR"]);
    store::Recordset rs = identity_row();
    if (rs.eof()) return;
    rs.edit();
    for (const char* name : {"A1", "A2", "A3", "A4", "A5", "A6", "A10"}) rs[name] = f[name].text();
    rs["x10"] = f["COR"].text();
    rs.update();
    rt.message("Operação realizada.");
  };
  auto volta = [&rt] { rt.close("EMPRE"); };
  ui::add_action(f, "Command16", "sdfsd", "Grava ", grava);
  ui::add_action(f, "Command7", "sdfsdf", "Volta", volta);
  f.on_load = [&rt, &f] {
    rt.centre(f);
    store::Recordset rs = identity_row();
    if (rs.eof()) return;
    for (const char* name : {"A1", "A2", "A3", "A4", "A5", "A6", "A10"}) f[name].set_text(rs[name].text());
    f["COR"].set_text(rs["x10"].text());
  };
  return form;
}

}  // namespace mz::shell
