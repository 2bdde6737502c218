#include "store/shop_identity.h"

#include "store/database.h"

namespace mz::store {

ShopIdentity shop_identity() {
  ShopIdentity lines;
  Recordset rs = Workspace::open_database("\\EMPE.Mdb").open_recordset("SELECT* FROM EMPE ORDER BY A1");
  if (rs.eof()) return lines;
  for (size_t i = 0; i < lines.size(); ++i) lines[i] = rs["A" + std::to_string(i + 1)].text();
  return lines;
}

}  // namespace mz::store
