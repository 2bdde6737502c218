#include "records/customers.h"

#include "store/database.h"

namespace mz::records {

// The names only: a list of thousands of customers needs no whole rows.
std::vector<std::string> customer_names() {
  std::vector<std::string> names;
  store::Database db = store::Workspace::open_database("\\CADA.Mdb");
  for (store::Recordset rs = db.open_recordset("select A1 from CADA order by A1"); !rs.eof(); rs.move_next())
    names.push_back(rs[0].text());
  return names;
}

}  // namespace mz::records
