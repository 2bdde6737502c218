#include "print/spreadsheet.h"

#include <xlsxwriter.h>

#include "core/error.h"
#include "core/regional.h"
#include "core/text.h"

namespace mz::print {
namespace {

constexpr int kCannotWrite = 75;  // path/file access error

// Sheet names are limited to 31 characters and some punctuation.
std::string sheet_name(const std::string& title) {
  std::string out;
  for (char c : title)
    if (std::string_view("[]:*?/\\").find(c) == std::string_view::npos) out += c;
  return out.empty() ? "Relatorio" : left(out, 31);
}

// Codes with leading zeros ("0007") stay text.
std::optional<double> as_number(const std::string& cell) {
  if (cell.size() > 1 && cell[0] == '0' && is_digit(cell[1])) return std::nullopt;
  return parse_number(cell);
}

}  // namespace

void write_spreadsheet(const Document& document, const std::string& path) {
  lxw_workbook* book = workbook_new(path.c_str());
  if (!book) throw Error(kCannotWrite, "Não foi possível criar o arquivo " + path + ".");
  lxw_worksheet* sheet = workbook_add_worksheet(book, sheet_name(document.title).c_str());
  lxw_format* bold = workbook_add_format(book);
  format_set_bold(bold);
  for (size_t r = 0; r < document.table.size(); ++r) {
    for (size_t c = 0; c < document.table[r].size(); ++c) {
      const std::string& cell = document.table[r][c];
      auto row = static_cast<lxw_row_t>(r);
      auto col = static_cast<lxw_col_t>(c);
      std::optional<double> number = r == 0 ? std::nullopt : as_number(cell);
      if (number) worksheet_write_number(sheet, row, col, *number, nullptr);
      else if (!cell.empty()) worksheet_write_string(sheet, row, col, cell.c_str(), r == 0 ? bold : nullptr);
    }
  }
  if (workbook_close(book) != LXW_NO_ERROR) throw Error(kCannotWrite, "Não foi possível gravar o arquivo " + path + ".");
}

}  // namespace mz::print
