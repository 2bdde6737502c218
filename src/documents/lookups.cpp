#include "documents/lookups.h"

#include "store/database.h"
#include "store/sql_text.h"

namespace mz::documents {

std::optional<CustomerCard> find_customer(std::string_view name) {
  store::Database db = store::Workspace::open_database("\\CADA.Mdb");
  store::Recordset rs = db.open_recordset("SELECT* FROM CADA where A1 = " + store::sql_quote(name));
  if (rs.eof()) return std::nullopt;
  CustomerCard card{rs["A9"].text(), rs["A11"].text(), rs["A12"].text(), rs["A13"].text(),
                    rs["A14"].text(), rs["A4"].text(), rs["A23"].text()};
  if (card.document.empty()) card.document = rs["A24"].text();
  return card;
}

}  // namespace mz::documents
