#pragma once
// What ENTRADA and PEDIDO share when a document of launched lines is timed:
// keying the lines, and the raw baseline that rewrites the same rows.
#include <string>

#include "bench/support.h"
#include "ui/form.h"
#include "ui/runtime.h"

namespace mz::bench {

// Launches `lines` lines (F1) of two sizes each, slots 1 and 3, one
// reference apart per line.
void key_document_lines(ui::Form& f, ui::Runtime& rt, int lines);

// The median of deleting document `number` from ENTRA of `file` and
// inserting `lines` rows through `insert` (bound: number, name, reference),
// in one transaction; the rows are removed again afterwards.
double raw_document_rewrite(const fs::path& file, const std::string& insert, const std::string& number,
                            const std::string& name, int lines);

}  // namespace mz::bench
