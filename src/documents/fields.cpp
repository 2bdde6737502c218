#include "documents/fields.h"

#include "core/amount_in_words.h"
#include "core/format.h"
#include "core/input_helpers.h"
#include "store/sql_text.h"

namespace mz::documents {

std::string amount_words(const std::string& amount) { return amount_in_words(format(Value(amount), "#########.00")); }

Date period_bound(ui::Runtime& rt, ui::Control& field) {
  field.set_text(date_field_rule(field.text(), rt.host().today()));
  return Value(field.text()).to_date();
}

std::string period_where(ui::Runtime& rt, ui::Control& from, ui::Control& to, const std::string& column) {
  period_bound(rt, from);
  period_bound(rt, to);
  Date today = rt.host().today();
  return "where " + column + " between #" + store::data_sql(from.text(), today) + "# and #" +
         store::data_sql(to.text(), today) + "#";
}

}  // namespace mz::documents
