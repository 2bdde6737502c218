#pragma once
// What Impe and NAS share: the work table Rela, filled from the customers,
// and its print through a preview or the printer.
#include <memory>
#include <string>
#include <vector>

#include "store/database.h"
#include "ui/report.h"
#include "ui/runtime.h"

namespace mz::maintenance {

// A row of Rela, as the reports show it.
struct RelaRow {
  std::string codigo, nome, apelido, fone, cidade, empresa, tipo, rua, cep, data;
};

// A customer's row of CADA as a row of Rela: the address joined with
// blanks, the classification behind its caption.
RelaRow customer_row(store::Recordset& cada);

// Empties Rela and writes the rows, in one unit.
void fill_rela(const std::vector<RelaRow>& rows);

// The shown notice before labels are printed; the sender's labels add how
// to change the sender.
extern const char* const kLabelsNotice;
extern const char* const kSenderLabelsNotice;

// Report1 preset to the window and Report2 to the printer, as the screens
// that ask "Deseja visualizar a impressão?" hold them.
struct ReportPair {
  explicit ReportPair(ui::Runtime& rt)
      : window(rt, print::Destination::Window), printer(rt, print::Destination::Printer) {}
  ui::Report window, printer;
};

// Asks whether to preview, then runs the template over `data` by the chosen
// component; a failed print shows the message of the printing screens.
void print_rows(ui::Runtime& rt, ReportPair& reports, const std::string& report_file,
                const std::string& data = "\\Rela.MDB", const std::string& formula = "");

}  // namespace mz::maintenance
