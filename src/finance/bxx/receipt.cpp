// "&Recibo": the payment receipt drawn on the printer from the fields as they
// stand, so it can be printed before, or without, a settlement.
#include <string>
#include <vector>

#include "core/format.h"
#include "finance/bxx/form.h"
#include "print/line_printer.h"
#include "store/shop_identity.h"
#include "ui/fields.h"

namespace mz::finance::bxx {

namespace {

constexpr const char* kRule = "==============================================";

std::string figure(const std::string& text) { return format(Value(text), "###,##0.00"); }

std::vector<std::string> receipt_lines(ui::Runtime& rt, const ui::Form& f) {
  // The interest is marked "(-)" though it is added below: the receipt's form.
  std::vector<std::string> lines = {
      "  ",
      "  ",
      kRule,
      "  " + store::shop_identity()[0],
      kRule,
      "  RECIBO - COMPROVANTE DE PAGAMENTO",
      kRule,
      "  CONTROLE...." + f["NN"].text() + "  DATA: " + ui::today_text(rt),
      kRule,
      "  CLIENTE....." + f["D9"].text(),
      "  NR.DOC......" + f["D4"].text(),
      "  VENCIMENTO.." + ui::stored_date(f["D3"].text()),
      "  DT.PGTO....." + ui::stored_date(f["PG"].text()),
      "  VLR.PARC...." + figure(f["D5"].text()) + "(+)",
      "  VLR.JUROS..." + figure(f["G3"].text()) + "(-)",
      kRule,
      "  VLR.A PAGAR." + format(Value(money_in(f["D5"]) + money_in(f["G3"])), "###,##0.00") + "(=)",
      kRule,
      "  VLR.PAGO...." + figure(f["VP"].text()),
      "  -----------------------------------------------------",
      "", "", "", "", "",
      "  --------------------------------------",
      "  ASS.RESPONSAVEL E CARIMBO",
      "",
  };
  lines.insert(lines.end(), 12, " ");
  return lines;
}

}  // namespace

void print_receipt(ui::Runtime& rt, ui::Form& f) {
  f["D2"].set_text(ui::today_text(rt));
  if (rt.message("Confirma impressão do recibo?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes) return;
  print::LinePrinter printer;
  printer.set_font("ARIAL", 10);
  for (const std::string& line : receipt_lines(rt, f)) {
    printer.text(line);
    printer.end_line();
  }
  rt.host().print_document(printer.end_doc());
}

}  // namespace mz::finance::bxx
