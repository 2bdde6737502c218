#include "stock/entrada/document.h"

#include "core/error.h"
#include "stock/balance.h"
#include "stock/entrada/band.h"
#include "store/keys.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::stock::document {


namespace {

std::string where_number(const std::string& number) { return " where CODIGO = " + store::sql_quote(number); }

}  // namespace

std::string direction(const std::string& text) { return text == kExit ? kExit : kEntry; }

store::Database ledger(const std::string& direction) {
  return store::Workspace::open_database(direction == kExit ? "\\SAI.MDB" : "\\ENTRA.MDB");
}

std::string next_number(const std::string& direction) {
  store::Database db = ledger(direction);
  return store::next_key(db, store::keys::kMovement);
}

store::Recordset rows(store::Database& db, const std::string& number) {
  return db.open_recordset("SELECT* FROM ENTRA" + where_number(number));
}

void record(const std::string& direction, const Header& header, ui::Control& grid) {
  store::Database db = ledger(direction);
  // A correction replaces the document: a crash between the old rows going
  // and the new ones coming must leave the old ones.
  store::Database::Transaction unit(db);
  ui::resume_style([&] { db.execute("DELETE FROM ENTRA" + where_number(header.number)); });
  store::Recordset rs = rows(db, header.number);
  ui::GridCells& g = grid.grid;
  for (int r = 1; r < g.rows; ++r) {
    auto put = [&](const char* column, const Value& value) { ui::resume_style([&] { rs[column] = value; }); };
    ui::resume_style([&] { rs.add_new(); });
    put("CODIGO", Value(header.number));
    put("NOME", Value(header.name));
    put("DATA", Value(ui::stored_date(header.date)));
    put("TIPO", Value(header.doc));
    put("TOTAL", Value(header.total));
    for (const auto& [column, value] : header.more) put(column.c_str(), Value(value));
    put("REFERENCIA", Value(g.cell(r, band::kReferenceColumn)));
    for (int n = 1; n <= kSlots; ++n) {
      std::string& cell = g.cell(r, n);
      if (cell.empty()) cell = "0";
      ui::resume_style([&] { rs["X" + std::to_string(n)] = Value(cell); });
    }
    put("QTDA", Value(g.cell(r, band::kQuantityColumn)));
    put("VALOR", Value(g.cell(r, band::kCostColumn)));
    if (header.with_labels) put("ET", Value(g.cell(r, band::kLabelColumn)));
    try {
      rs.update();
    } catch (const Error&) {
      rs.cancel_update();  // a row that cannot be written is passed over
    }
  }
  unit.commit();
}

void remove(const std::string& direction, const std::string& number) {
  ledger(direction).execute("DELETE FROM ENTRA" + where_number(number));
}

}  // namespace mz::stock::document
