#pragma once
// A list report as a spreadsheet: its captions and rows, one cell each.
#include <string>

#include "print/page.h"

namespace mz::print {

// Cells that read as numbers the shop's way ("1.234,56", "12") go in as
// numbers, so that the sheet can add them up; the rest as text. Throws Error
// when the file cannot be written.
void write_spreadsheet(const Document& document, const std::string& path);

}  // namespace mz::print
