// Cadastro: the customer card, with its dependants and classification.
#include <memory>

#include "core/format.h"
#include "records/cadastro/card.h"
#include "records/customers.h"
#include "records/option_list.h"
#include "records/screens.h"
#include "ui/fields.h"

namespace mz::records {

using ui::ControlKind;

namespace {

// The names only, in order, and a count: the whole rows are not needed to
// open the card.
void fill_lists(cadastro::CadastroForm& f) {
  store::Database db = cadastro::customers();
  store::Recordset count = db.open_recordset("select count(*) from CADA");
  f["nr"].set_text(format(count[0].value(), "00000"));
  ui::name_combo(f["A1"], customer_names());
  f["A26"].items = list_items(lists::kClassifications);
}

}  // namespace

std::unique_ptr<ui::Form> make_cadastro(ui::Runtime& rt) {
  auto form = std::make_unique<cadastro::CadastroForm>(rt);
  cadastro::CadastroForm& f = *form;
  cadastro::add_card(f);
  cadastro::attach_checks(f);
  cadastro::add_actions(f);
  f.add("StatusBar1", ControlKind::Label);
  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["A31"].set_text("0,00");
    fill_lists(f);
  };
  return form;
}

}  // namespace mz::records
