#include "sales/printing/ticket.h"

#include <exception>

#include "core/format.h"
#include "core/regional.h"
#include "core/text.h"
#include "print/line_printer.h"
#include "ui/runtime.h"

namespace mz::sales {

namespace {

constexpr int kRunOutLines = 8;
constexpr const char* kCondensed = "\x1B\x0F";

// A print statement as the port receives it: spaces up to each print column,
// and a new line when the text already stands past it, as Tab does.
std::vector<std::string> plain_lines(const TicketLine& pieces) {
  std::vector<std::string> out(1);
  for (const Piece& piece : pieces) {
    if (piece.column > 0) {
      size_t at = len(out.back()) + 1;
      if (at > static_cast<size_t>(piece.column)) {
        out.emplace_back();
        at = 1;
      }
      out.back() += space(static_cast<size_t>(piece.column) - at);
    }
    out.back() += piece.text;
  }
  return out;
}

}  // namespace

Ticket& Ticket::line(std::string text) { return line(TicketLine{{0, std::move(text)}}); }

Ticket& Ticket::line(TicketLine pieces) {
  lines_.push_back(std::move(pieces));
  return *this;
}

Ticket& Ticket::at(int column, std::string text) { return line(TicketLine{{column, std::move(text)}}); }

Ticket& Ticket::run_out() {
  for (int i = 0; i < kRunOutLines; ++i) line();
  return *this;
}

std::string figure(std::string_view text) { return format(Value(std::string(text)), "###,##0.00"); }

bool is_zero(std::string_view text) { return parse_number(text).value_or(0) == 0; }

std::string today_text(ui::Runtime& rt) { return format(Value(rt.host().now()), "dd/mm/yyyy"); }

std::string time_text(ui::Runtime& rt) { return format(Value(rt.host().now()), "HH:MM"); }

void to_printer(ui::Runtime& rt, const Ticket& ticket, double size) {
  print::LinePrinter printer;
  printer.set_font("ARIAL", size);
  for (const TicketLine& pieces : ticket.lines()) {
    for (const Piece& piece : pieces) {
      if (piece.column > 0) printer.tab(piece.column);
      printer.text(piece.text);
    }
    printer.end_line();
  }
  rt.host().print_document(printer.end_doc());
}

void to_port(ui::Runtime& rt, const Ticket& ticket) {
  print::RawPort port(kCondensed);
  for (const TicketLine& pieces : ticket.lines())
    for (const std::string& text : plain_lines(pieces)) port.line(text);
  rt.host().send_to_port(port.bytes());
}

void print_trapped(ui::Runtime& rt, const std::function<void()>& work) {
  try {
    work();
  } catch (const std::exception&) {
    rt.wait_pointer(false);
    rt.message("Operação não realizada. Verifique a impressora.");
  }
}

}  // namespace mz::sales
