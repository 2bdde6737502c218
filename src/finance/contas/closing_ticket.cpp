#include "finance/contas/closing_ticket.h"

#include "core/format.h"
#include "finance/contas/closing_sales.h"
#include "print/line_printer.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::finance::contas {

namespace {

constexpr const char* kDashes = "  -----------------------------------------------------";
constexpr const char* kCondensed = "\x1B\x0F";
constexpr int kRunOutLines = 8;

// The settled accounts of one operation due on the day, a line each, in
// the order of their control numbers; returns their total.
Currency settled_due(std::vector<std::string>& lines, const char* operation, const char* shown,
                     const std::string& day) {
  store::Database db = store::Workspace::open_database("\\Contas.Mdb");
  Currency total;
  for (store::Recordset rs = db.open_recordset("SELECT " + std::string(shown) +
                                               ", D5 FROM Cada WHERE BX = 'F' AND D1 = " + store::sql_quote(operation) +
                                               " AND D3 = #" + day + "# ORDER BY CODIGO");
       !rs.eof(); rs.move_next()) {
    Value amount = rs["D5"].value();
    lines.push_back("  " + rs[0].text() + "  | " + format(amount, "###,###.00"));
    if (!amount.is_null()) total = total + amount.to_currency();
  }
  return total;
}

void by_name(std::vector<std::string>& lines, const char* mark, const std::vector<std::string>& names,
             const Sums& sums) {
  for (const std::string& name : names)
    lines.push_back(mark + name + "  > R$: " + ui::money_text(Value(sum_of(sums, name))));
}

}  // namespace

std::vector<std::string> closing_lines(TicketMode mode, const std::string& day, const std::string& until, Date today) {
  const bool graphic = mode == TicketMode::Graphic;
  const std::string d = store::data_sql(day, today);
  const std::string d_until = store::data_sql(until, today);
  std::vector<std::string> lines = {" ", kDashes};
  {
    store::Database empe = store::Workspace::open_database("\\EMPE.Mdb");
    for (store::Recordset rs = empe.open_recordset("SELECT* FROM EMPE ORDER BY A1"); !rs.eof(); rs.move_next())
      lines.push_back("  " + rs["A1"].text());
  }
  lines.push_back(" FECHAMENTO DE MOVIMENTO - DATA: " + format(Value(day), "00/00/0000"));
  lines.push_back(kDashes);
  lines.push_back(" ENTRADAS");
  Currency entries = settled_due(lines, "Receber", "D4", d);
  lines.push_back(kDashes);
  lines.push_back(graphic ? "  SAIDAS" : " SAIDAS");
  Currency exits = settled_due(lines, "Pagar", "D6", d);
  lines.push_back(kDashes);
  lines.push_back(" TOTAL DE ENTRADAS R$. " + ui::money_text(Value(entries)));
  lines.push_back(" TOTAL DE SAIDAS   R$. " + ui::money_text(Value(exits)));
  const char* balance = graphic ? " SALDO R$............. " : "             SALDO R$.";
  lines.push_back(balance + ui::money_text(Value(entries - exits)));
  lines.push_back("");
  lines.push_back(" VENDAS DO DIA R$." + ui::money_text(Value(sales_between(d, d).total)));
  lines.push_back("");
  lines.push_back("");
  const char* mark = graphic ? "  >" : " >";
  lines.push_back(kDashes);
  lines.push_back(" VENDAS POR FORMA DE PAGAMENTO");
  by_name(lines, mark, option_names("\\A1.mdb"), accounts_by_type(d, d_until));
  lines.push_back(kDashes);
  lines.push_back(" VENDAS POR VENDEDOR");
  by_name(lines, mark, option_names("\\A2.mdb"), accounts_by_remark(d, d_until));
  lines.insert(lines.end(), kRunOutLines, "");
  return lines;
}

void print_closing(ui::Runtime& rt, ui::Form& f, TicketMode mode) {
  const char* question = mode == TicketMode::Dos ? "Confirma impressão do ticke de fechamento de caixa?"
                                                 : "Confirma impressão do fechamento de caixa?";
  if (rt.message(question, ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes) return;
  std::vector<std::string> lines = closing_lines(mode, f["D2"].text(), f["D3"].text(), rt.host().today());
  if (mode == TicketMode::Dos) {
    print::RawPort port(kCondensed);
    for (const std::string& line : lines) port.line(line);
    return rt.host().send_to_port(port.bytes());
  }
  print::LinePrinter printer;
  printer.set_font("ARIAL", 10);
  for (const std::string& line : lines) printer.text(line).end_line();
  rt.host().print_document(printer.end_doc());
}

}  // namespace mz::finance::contas
