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

using ui::ReportPair;

}  // namespace mz::maintenance
