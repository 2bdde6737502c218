// Looking a customer up from the card: by code, by name, and the duplicate
// checks that offer the card already on file for a phone, a CPF, a CNPJ or a
// first reference.
#include <algorithm>

#include "core/format.h"
#include "core/input_helpers.h"
#include "core/text.h"
#include "records/cadastro/card.h"
#include "ui/fields.h"

namespace mz::records::cadastro {

namespace {

// Offers the card on file whose `column` holds the field's text, with the
// question; Yes puts it on the screen. The current customer is asked about
// too, as any other.
void offer_duplicate(CadastroForm& f, const std::string& column, const std::string& question) {
  ui::Runtime& rt = f.rt();
  std::string value = f[column].text();
  ui::jump_style(rt, [&] {
    rt.wait_pointer(true);
    store::Database db = customers();
    store::Recordset rs = customer_where(db, column, value);
    rt.wait_pointer(false);
    if (rs.eof()) return;
    if (rt.message(question, ui::Buttons::YesNo, ui::Icon::Question) == ui::Answer::Yes) f.show_customer(rs);
  });
}

// A number that fails its check digits is wiped and the user stays on it.
void refuse(CadastroForm& f, const std::string& field) {
  f[field].set_text("");
  f.rt().set_focus(f[field]);
}

size_t digit_count(const std::string& text) {
  return static_cast<size_t>(std::count_if(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }));
}

}  // namespace

void attach_checks(CadastroForm& f) {
  f["NN"].on_lost_focus = [&f] {
    if (f["NN"].text().empty()) return;
    std::string code = format(Value(f["NN"].text()), "0000");
    f["NN"].set_text(code);
    // A code not on file leaves the card as it is, ready to become that customer.
    ui::jump_style(f.rt(), [&] { f.show_customer_where("CODIGO", code); });
  };
  f["A1"].on_lost_focus = [&f] {
    std::string name = f["A1"].text();
    if (name.empty()) return;
    if (!f.show_customer_where("A1", name)) f.show_dependants(name);
  };
  // A blank CPF or CNPJ is no CPF or CNPJ and passes.
  f["A24"].on_lost_focus = [&f] {
    std::string cpf = f["A24"].text();
    if (cpf.empty()) return;
    if (len(cpf) != 11) return f["A24"].set_text("");
    if (valida_cpf(cpf) != "True") return refuse(f, "A24");
    offer_duplicate(f, "A24", "CPF encontrado, deseja consultar os dados do mesmo?");
  };
  f["A23"].on_lost_focus = [&f] {
    std::string cnpj = f["A23"].text();
    if (digit_count(cnpj) == 0) return;
    if (digit_count(cnpj) < 14) return f["A23"].set_text("");
    if (valida_cnpj(cnpj) != "True") return refuse(f, "A23");
    offer_duplicate(f, "A23", "CGC encontrado, deseja consultar os dados do mesmo?");
  };
  // Only a filled phone or reference is searched: a blank one would match
  // every card that has none.
  f["A4"].on_lost_focus = [&f] {
    if (!f["A4"].text().empty())
      offer_duplicate(f, "A4", "Telefone encontrado, deseja consultar os dados do mesmo?");
  };
  f["A27"].on_lost_focus = [&f] {
    if (!f["A27"].text().empty())
      offer_duplicate(f, "A27", "Nº de Série encontrado, deseja consultar os dados do mesmo?");
  };
}

}  // namespace mz::records::cadastro
