#pragma once
// What the sale tests read back from the files they post to.
#include <string>
#include <vector>

#include "store/database.h"

namespace mz::sales {

// Every row of a query, its columns joined by "|", a null shown as "~".
inline std::vector<std::string> stored_rows(const char* file, const std::string& sql) {
  store::Recordset rs = store::Workspace::open_database(file).open_recordset(sql);
  std::vector<std::string> out;
  for (; !rs.eof(); rs.move_next()) {
    std::string row;
    for (size_t i = 0; i < rs.field_count(); ++i) {
      Value v = rs[i];
      row += (i ? "|" : "") + (v.is_null() ? std::string("~") : v.text());
    }
    out.push_back(row);
  }
  return out;
}

}  // namespace mz::sales
