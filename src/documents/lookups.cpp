#include "documents/lookups.h"

#include "store/database.h"
#include "store/sql_text.h"

namespace mz::documents {

std::vector<std::string> customer_names() {
  std::vector<std::string> names;
  store::Database db = store::Workspace::open_database("\\CADA.Mdb");
  for (store::Recordset rs = db.open_recordset("Select * From CADA order by A1"); !rs.eof(); rs.move_next())
    names.push_back(rs["A1"].text());
  return names;
}

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
