#pragma once
// The tickets of a sale as print statements: text at the current position or
// at a print column, laid out once and sent either to the system printer or,
// as plain text, to the printer's port.
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace mz::ui {
class Runtime;
}

namespace mz::sales {

struct Piece {
  int column;  // 1-based print column; 0 continues where the line stands
  std::string text;
};
using TicketLine = std::vector<Piece>;

class Ticket {
 public:
  Ticket& line(std::string text = "");
  Ticket& line(TicketLine pieces);
  Ticket& at(int column, std::string text);  // a line of its own at a print column
  // The empty lines that run the paper out of the printer.
  Ticket& run_out();
  const std::vector<TicketLine>& lines() const { return lines_; }

 private:
  std::vector<TicketLine> lines_;
};

// A money field of the screen as the tickets print it, "###,##0.00"; a
// percentage discount prints as its number.
std::string figure(std::string_view text);
// Whether a money field holds no amount ("0,00", "", "0").
bool is_zero(std::string_view text);
// "dd/mm/yyyy" and "HH:MM" of the host's clock, as the ticket heads show them.
std::string today_text(ui::Runtime& rt);
std::string time_text(ui::Runtime& rt);

// The system printer: the font and size named, the page closed at the end.
void to_printer(ui::Runtime& rt, const Ticket& ticket, double size);
// The printer's port: each line behind ESC SI, the condensed mode.
void to_port(ui::Runtime& rt, const Ticket& ticket);
// A print under the trap that reports any failure of the printer, the
// report or its work table with the one message; what was written stays.
void print_trapped(ui::Runtime& rt, const std::function<void()>& work);

}  // namespace mz::sales
