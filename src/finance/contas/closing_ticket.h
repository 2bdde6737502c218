#pragma once
// The day closing ticket of Contas ("Vendas do dia"): the day's settled
// entries and exits with their totals, the day's sales, and the day's
// movement by payment form and by seller; to the raw port in condensed
// print ("Modo DOS") or drawn on the system printer ("Modo Gráfico").
#include <string>
#include <vector>

#include "core/value.h"
#include "ui/runtime.h"

namespace mz::finance::contas {

enum class TicketMode { Dos, Graphic };

// The ticket's lines, without control bytes. `day` and `until` are the D2
// and D3 fields of Contas as they stand.
std::vector<std::string> closing_lines(TicketMode mode, const std::string& day, const std::string& until, Date today);

// Mo and sddssds: ask, then print the ticket for the fields of Contas.
void print_closing(ui::Runtime& rt, ui::Form& f, TicketMode mode);

}  // namespace mz::finance::contas
