#include "finance/searches/party_report.h"

#include "core/format.h"
#include "store/database.h"
#include "store/sql_text.h"

namespace mz::finance::searches {

namespace {

// Where each column of rela lies in a list: due date, document, the two
// amounts, control number, description.
struct Columns {
  int due, document, first_amount, second_amount, control, description;
};
constexpr Columns kOpenColumns = {0, 1, 2, 3, 4, 5};
constexpr Columns kSettledColumns = {0, 1, 3, 4, 5, 6};

std::string amount_or_zero(const std::string& cell) { return cell.empty() ? "0,00" : cell; }

}  // namespace

std::shared_ptr<ui::Report> party_report(ui::Runtime& rt) {
  return std::make_shared<ui::Report>(rt, print::Destination::Window);
}

void print_party(ui::Report& report, const ui::Form& screen, const ui::Control& list, PartyList which) {
  const Columns& c = which == PartyList::Open ? kOpenColumns : kSettledColumns;
  std::string from = format(Value(screen["A2"].text()), "00/00/0000");
  std::string to = format(Value(screen["A3"].text()), "00/00/0000");
  const std::string& party = screen["D9"].text();
  {
    store::Database db = store::Workspace::open_database("\\rela10.MDB");
    store::Database::Transaction unit(db);
    db.execute("DELETE FROM rela;");
    const ui::GridCells& g = list.grid;
    // The table was just emptied, so every row of the list is new to it.
    for (int r = g.fixed_rows; r < g.rows; ++r) {
      db.execute("Insert into rela (Codigo, DI, DF, TIPO, VENC, DOC, VALOR, VL, CONTROLE, HISTO) values (" +
                 store::sql_quote(std::to_string(r)) + ", " + store::sql_quote(from) + ", " + store::sql_quote(to) +
                 ", " + store::sql_quote(party) + ", " + store::sql_quote(g.cell(r, c.due)) + ", " +
                 store::sql_quote(g.cell(r, c.document)) + ", " +
                 store::sql_quote(amount_or_zero(g.cell(r, c.first_amount))) + ", " +
                 store::sql_quote(amount_or_zero(g.cell(r, c.second_amount))) + ", " +
                 store::sql_quote(g.cell(r, c.control)) + ", " + store::sql_quote(g.cell(r, c.description)) + ")");
    }
    unit.commit();
  }
  report.data_files = "\\rela10.MDB";
  report.report_file_name = which == PartyList::Open ? "\\rela11.rpt" : "\\rela12.rpt";
  report.action(1);
}

}  // namespace mz::finance::searches
