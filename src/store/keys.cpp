#include "store/keys.h"

#include "core/format.h"

namespace mz::store {

std::string next_key(Database& db, const KeyRule& rule) {
  Recordset rs = db.open_recordset(rule.statement);
  if (rs.eof()) return rule.first;
  Value highest = rs[0];
  if (highest.is_null()) return rule.first;
  return format(Value(highest.to_number() + 1.0), rule.mask);
}

}  // namespace mz::store
