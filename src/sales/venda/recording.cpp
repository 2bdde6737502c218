#include "sales/venda/recording.h"

#include "sales/venda/posting.h"
#include "sales/venda/sale.h"

namespace mz::sales::venda {

// The checks run in this order; a sale already recorded (or recalled) is
// left alone without a word.
void record_sale(ui::Runtime& rt, ui::Form& f) {
  if (f["c1"].text().empty()) f["c1"].set_text("Consumidor final");
  if (f["Grid1"].grid.rows == 1) {
    rt.message("Não foi encontrado nenhum produto lançado.");
    return;
  }
  if (f["K4"].text().empty()) {
    rt.message("Selecione a forma de pagamento.");
    return rt.set_focus(f["K4"]);
  }
  if (f["VEN"].text().empty()) {
    rt.message("Selecione o vendedor.");
    return rt.set_focus(f["VEN"]);
  }
  if (!f["CODIGO"].text().empty()) return;
  const std::string number = post_sale(read_sale(f), rt.host().today());
  f["CODIGO"].set_text(number);
  rt.message("Venda gravada com sucesso sob número: " + number);
}

}  // namespace mz::sales::venda
