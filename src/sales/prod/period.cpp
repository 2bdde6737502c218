#include "sales/prod/period.h"

#include "core/error.h"
#include "core/input_helpers.h"
#include "store/database.h"
#include "store/sql_text.h"

namespace mz::sales::prod {

Period read_period(ui::Runtime& rt, ui::Form& f, const char* first, const char* last,
                   std::optional<std::string> empty_start) {
  const Date today = rt.host().today();
  if (empty_start && f[first].text().empty()) f[first].set_text(*empty_start);
  for (const char* name : {first, last}) f[name].set_text(date_field_rule(f[name].text(), today));
  return {store::data_sql(f[first].text(), today), store::data_sql(f[last].text(), today), f[first].text(),
          f[last].text()};
}

std::vector<SaleRow> period_sales(const Period& p, const char* column, const std::string& value) {
  // VALOR is the whole sale's total on every line, so it is grouped on, never summed.
  const char* kHeader = "CODIGO, DATA, NOME, VENDEDOR, PAGAMENTO, VALOR";
  std::string sql = std::string("SELECT ") + kHeader + " FROM VENDA WHERE " + p.between();
  if (column) sql += std::string(" AND ") + column + " = " + store::sql_quote(value);
  sql += std::string(" GROUP BY ") + kHeader + " ORDER BY " + kHeader;
  std::vector<SaleRow> rows;
  store::Database db = store::Workspace::open_database("\\VENDA.MDB");
  // By position, in the order of the select: a month holds thousands of rows.
  for (store::Recordset rs = db.open_recordset(sql); !rs.eof(); rs.move_next())
    rows.push_back({rs[0].text(), store::data_tela(rs[1]), rs[2].text(), rs[3].text(), rs[4].text(), rs[5].value()});
  return rows;
}

Currency amount_of(const Value& v) {
  if (v.is_null() || v.is_empty()) return {};
  try {
    return v.to_currency();
  } catch (const Error&) {
    return {};  // a price or cost typed as no amount weighs nothing
  }
}

}  // namespace mz::sales::prod
