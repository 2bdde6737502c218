// The tickets of a sale: "03- Cupom A" on the page printer, "04- Cupom B" on
// a dot-matrix printer's port, and vendaimpre's "02- Formato Cupom". Each
// takes the shop's heading and end lines from EMPE.
#include <string>

#include "core/input_helpers.h"
#include "core/regional.h"
#include "sales/printing.h"
#include "sales/printing/ticket.h"
#include "store/shop_identity.h"
#include "ui/runtime.h"

namespace mz::sales {

namespace {

constexpr int kFigures = 30;  // the print column of the closing figures
constexpr const char* kDashes = "  -----------------------------------------------------";
constexpr const char* kRule = "==============================================";

// The two ticket layouts differ only in these words and rules.
struct Wording {
  std::string customer, telephone, document, seller, payment;
  bool dashes;      // rules around the date line and at the end
  bool amount_paid;  // "Valor pago: " between the total and the change
};

const Wording kPagePrinter{"  Cliente:   ", "  Telefone:  ", "  Documento: ", "  Vendedor: ", "  Forma pagamento: ",
                           false, false};
const Wording kDotMatrix{"   Cliente:   ", "   Telefone:  ", "   Documento: ", "  Vendedor:   ", "  Forma Pgto: ",
                         true, true};

void heading(Ticket& t, const store::ShopIdentity& shop) {
  for (size_t i = 0; i < 4; ++i) t.line("  " + shop[i]);
}

void end_lines(Ticket& t, const store::ShopIdentity& shop) {
  t.line("  " + shop[4]).line("  " + shop[5]);
}

Ticket counter_ticket(ui::Runtime& rt, const SaleOnScreen& s, const Wording& w) {
  const store::ShopIdentity shop = store::shop_identity();
  Ticket t;
  t.line("  ");
  heading(t, shop);
  t.line(" ");
  if (w.dashes) t.line(kDashes);
  t.line("Data: " + std::string("  ") + today_text(rt) + " -  Hora: " + time_text(rt) + " - Nr.: " + s.codigo);
  if (w.dashes) t.line(kDashes);
  t.line(" ");
  if (!s.c1.empty()) {
    t.line(tira_acento(w.customer + s.c1));
    t.line(tira_acento(w.telephone + s.c2));
    t.line(tira_acento(w.document + s.c3));
  }
  t.line(" ").line("  Qtda. Produto                         Vlr.Unit.").line(" ");
  for (const auto& item : s.items) t.line({{0, "  " + item[0]}, {8, item[1]}, {45, figure(item[3])}});
  t.line(" ").line(w.seller + s.ven).line(w.payment + s.k4);
  t.at(kFigures, "Sub Total: " + figure(s.w1));
  // The discount prints as typed: a percentage shows as its number.
  if (!is_zero(s.w2)) t.at(kFigures, "Desconto: " + figure(s.w2));
  t.at(kFigures, "Total: " + figure(s.w3));
  if (w.amount_paid) t.at(kFigures, "Valor pago: " + figure(s.w4));
  if (!is_zero(s.w5)) t.at(kFigures, "Troco: " + figure(s.w5));
  t.line(" ");
  end_lines(t, shop);
  if (w.dashes) t.line(kDashes);
  return t.run_out();
}

Ticket format_ticket(ui::Runtime& rt, const SaleOnScreen& s) {
  const store::ShopIdentity shop = store::shop_identity();
  Ticket t;
  t.line(" ");
  heading(t, shop);
  t.line(kRule);
  t.line("Data: " + std::string("  ") + today_text(rt) + " -  Hora: " + time_text(rt) + " - Venda Nr.: " + s.codigo);
  t.line(kRule);
  t.line("   Cliente:   " + s.c1).line("   Telefone:  " + s.c2).line("   Documento: " + s.c3).line(kRule);
  t.line("  Codigo-Produto Tamanho Quant. Vlr Unit. Vlr Total");
  double quantity = 0;
  for (const auto& item : s.items) {
    t.line({{0, "  " + item[1]}, {45, item[2]}});
    t.line({{0, "  " + item[0] + "  x  "}, {14, figure(item[3])}, {0, " = "}, {0, figure(item[4])}});
    quantity += parse_number(item[0]).value_or(0);
  }
  t.line(kRule).line("  Vendedor:        " + s.ven).line("  Total de iten(s):" + number_text(quantity)).line(" ");
  t.at(kFigures, "Sub Total: " + figure(s.w1));
  t.at(kFigures, "Desconto:  " + figure(s.w2));
  t.at(kFigures, "Total:     " + figure(s.w3));
  t.at(kFigures, "Valor pago: " + figure(s.w4));
  t.at(kFigures, "Troco: " + figure(s.w5));
  t.line(kRule);
  end_lines(t, shop);
  return t.run_out();
}

bool confirmed(ui::Runtime& rt, const std::string& question) {
  return rt.message(question, ui::Buttons::YesNo, ui::Icon::Question) == ui::Answer::Yes;
}

}  // namespace

void print_cupom_a(ui::Runtime& rt, const SaleOnScreen& sale) {
  if (!confirmed(rt, "Confirma impressão de cupom não fiscal (Jato de tinta/Laser)?")) return;
  print_trapped(rt, [&] { to_printer(rt, counter_ticket(rt, sale, kPagePrinter), 8); });
}

void print_cupom_b(ui::Runtime& rt, const SaleOnScreen& sale) {
  if (!confirmed(rt, "Confirma impressão de cupom não fiscal em impressora (Matricial)?")) return;
  print_trapped(rt, [&] { to_port(rt, counter_ticket(rt, sale, kDotMatrix)); });
}

void print_cupom_format(ui::Runtime& rt, const SaleOnScreen& sale) {
  // Only the font is chosen here: the size is the printer's own, 10 points.
  print_trapped(rt, [&] { to_printer(rt, format_ticket(rt, sale), 10); });
}

}  // namespace mz::sales
