// PRODUTO: the reference card. One button stores a new reference or
// overwrites the one of that code; the list of groups is kept from here.
#include <memory>

#include "core/format.h"
#include "records/grade.h"
#include "records/option_list.h"
#include "records/produto/browse.h"
#include "records/produto/card.h"
#include "records/produto/photo.h"
#include "records/screens.h"
#include "ui/fields.h"

namespace mz::records {

using ui::ControlKind;
using namespace produto;

namespace {

// In the order of entry.
constexpr ui::FieldEntry kFields[] = {
    {"GR", "REFERÊNCIA", ControlKind::TextBox},
    {"E1", "GRUPO", ControlKind::ComboBox},
    {"E2", "DESCRIÇÃO DO PRODUTO", ControlKind::TextBox},
    {"E3", "CÓD.FORNECEDOR:", ControlKind::TextBox},
    {"E4", "LOCALIZAÇÃO OU FOTO...............", ControlKind::TextBox},
    {"E5", "ESTOQUE MÍNIMO ( COMPRAS ).....", ControlKind::MaskedBox},
    {"E6", "DATA:", ControlKind::MaskedBox},
    {"E7", "VALOR DE CUSTO DE REFERÊNCIA.............................", ControlKind::MaskedBox},
    {"E8", "MARGEM PARA DEFINIR O VALOR DE VENDA À VISTA...", ControlKind::MaskedBox},
    {"E9", "VALOR DE  VENDA À VISTA.........................................", ControlKind::MaskedBox},
    {"E10", "MARGEM PARA DEFINIR O VALOR DE VENDA À PRAZO.", ControlKind::MaskedBox},
    {"E11", "VALOR DE  VENDA À PRAZO........................................", ControlKind::MaskedBox},
    {"X1", "UNIDADE:", ControlKind::TextBox},
    {"X2", "NCM:", ControlKind::TextBox},
};

// A blank card for a new reference; the group stays as it was.
void new_reference(ui::Runtime& rt, ui::Form& f) {
  for (const char* name : {"X1", "X2", "E2", "E3", "E4", "IMG1"}) f[name].set_text("");
  blank_card(rt, f);
  rt.set_focus(f["E1"]);
}

void grava(ui::Runtime& rt, ui::Form& f) {
  // The mandatory fields say nothing: they take the focus.
  for (const char* name : {"GR", "E1", "E2"})
    if (f[name].text().empty()) return rt.set_focus(f[name]);
  store::Database db = references();
  store::Recordset rs = reference_row(db, f["GR"].text());
  if (rs.eof()) rs.add_new();
  else rs.edit();
  write_reference(rs, f);
  rs.update();
  rt.message("Referência gravada com sucesso.");
}

void exclui(ui::Runtime& rt, ui::Form& f) {
  if (rt.message("Deseja realmente apagar este cadastro?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
    return;
  {
    // A code that is not on file has no current row, and the engine says so.
    store::Database db = references();
    reference_row(db, f["GR"].text()).delete_current();
  }
  rt.message("Exclusão realizada com sucesso.");
  new_reference(rt, f);
}

// A code typed short is padded; a reference on file fills the card, and
// any other code keeps what the card holds, for a new reference.
void leave_code(ui::Form& f) {
  ui::Control& gr = f["GR"];
  if (!gr.text().empty()) gr.set_text(format(Value(gr.text()), "0000"));
  store::Database db = references();
  store::Recordset rs = reference_row(db, gr.text());
  if (!rs.eof()) show_reference(f, rs);
}

void declare_fields(ui::Runtime& rt, ui::Form& f) {
  for (const ui::FieldEntry& field : kFields) ui::add_field(f, field);
  f["GR"].on_lost_focus = [&f] { leave_code(f); };
  ui::Control& minimum = f["E5"];
  ui::number_field(minimum);
  minimum.on_lost_focus = [&minimum] {
    if (minimum.text().empty()) minimum.set_text("0");
  };
  ui::date_field(f["E6"]);
  ui::money_field(f["E7"]);
  ui::money_field(f["E8"], [&f] { apply_margin(f, "E7", "E8", "E9"); });
  ui::money_field(f["E9"]);
  // The credit margin goes on the cash price, not on the cost.
  ui::money_field(f["E10"], [&f] { apply_margin(f, "E9", "E10", "E11"); });
  ui::money_field(f["E11"]);
  f.add("IMG1", ControlKind::Image).on_click = [&rt] { rt.show("FrmImg"); };
  f.add("ComposicaoDaGradeDaReferenciaColoqueSimParaTodosOsTamanhosDoProduto", ControlKind::Label,
        "COMPOSIÇÃO DA GRADE DA REFERÊNCIA (COLOQUE = SIM PARA TODOS OS TAMANHOS DO PRODUTO)");
  // Each slot's size caption stands above its combo.
  for (int n = 1; n <= kSlots; ++n) {
    f.add("A" + std::to_string(n), ControlKind::Label).block = "grade";
    ui::Control& slot = f.add(slot_field(n), ControlKind::ComboBox);
    slot.items = {"SIM", "NÃO"};
    slot.block = "grade";
  }
}

void declare_buttons(ui::Runtime& rt, ui::Form& f) {
  ui::add_action(f, "df", "Grava", "Grava ", [&rt, &f] { grava(rt, f); });
  ui::add_action(f, "fg", "Novo", "Novo   ", [&rt, &f] { new_reference(rt, f); });
  ui::add_action(f, "hj", "Exclui", "Exclui   ", [&rt, &f] { exclui(rt, f); });
  ui::add_action(f, "jk", "Relatorios", "Relatórios", [&rt] { rt.show("IMPEREFE"); });
  ui::add_action(f, "kl", "Volta", "Volta", [&rt] { rt.close("PRODUTO"); });
  f.add("Command3", ControlKind::Button, "VER ESTOQUE").on_click = [&rt] { rt.show("CONSULTA"); };
  f.add("Command4", ControlKind::Button, "Grupos").on_click = [&rt, &f] {
    add_or_remove(rt, lists::kGroups, f["E1"]);
  };
  f.add("Command5", ControlKind::Button, "Localiza foto").on_click = [&rt, &f] { pick_photo(rt, f); };
  f.add("Command6", ControlKind::Button, "Fornecedores").on_click = [&rt] { rt.show("FORNECOD"); };
  struct BrowseButton {
    const char* name;
    const char* caption;
    Step step;
  };
  constexpr BrowseButton kBrowse[] = {{"Command9", "Primeiro", Step::First},
                                      {"Command10", "Anterior", Step::Previous},
                                      {"Command11", "Próximo", Step::Next},
                                      {"Command12", "Último", Step::Last}};
  for (const BrowseButton& b : kBrowse)
    f.add(b.name, ControlKind::Button, b.caption).on_click = [&f, step = b.step] { browse(f, step); };
}

}  // namespace

std::unique_ptr<ui::Form> make_produto(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "PRODUTO", "Cadastro de Produtos / Referências");
  ui::Form& f = *form;
  declare_fields(rt, f);
  declare_buttons(rt, f);
  f.on_load = [&rt, &f] {
    rt.centre(f);
    ui::name_combo(f["E1"], list_items(lists::kGroups));
    blank_card(rt, f);
    if (auto labels = grade_load())
      for (int n = 1; n <= kSlots; ++n) f["A" + std::to_string(n)].set_text((*labels)[static_cast<size_t>(n - 1)]);
  };
  return form;
}

}  // namespace mz::records
