#include "sales/sellers.h"

#include "store/database.h"

namespace mz::sales {

std::vector<std::string> seller_names() {
  std::vector<std::string> names;
  store::Database db = store::Workspace::open_database("\\SALA.Mdb");
  for (store::Recordset rs = db.open_recordset("Select X2 From sala order by x2"); !rs.eof(); rs.move_next())
    names.push_back(rs[0].text());
  return names;
}

}  // namespace mz::sales
