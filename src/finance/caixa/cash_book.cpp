#include "finance/caixa/cash_book.h"

#include "core/format.h"
#include "core/regional.h"
#include "store/keys.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::finance::cash {

namespace {

std::vector<Line> read_lines(const std::string& sql) {
  std::vector<Line> lines;
  store::Database db = open_book();
  for (store::Recordset rs = db.open_recordset(sql); !rs.eof(); rs.move_next())
    lines.push_back({store::data_tela(rs["A1"]), rs["A2"].text(), rs["A3"].text(), rs["A4"].text(), rs["A5"].value(),
                     rs["A6"].text(), rs["codigo"].text(), rs["PLANO"].text()});
  return lines;
}

Currency money(const Value& v) { return v.is_null() || v.is_empty() ? Currency{} : v.to_currency(); }

}  // namespace

store::Database open_book() { return store::Workspace::open_database("\\Caixa.Mdb"); }

std::optional<Date> typed_day(const std::string& text) {
  std::string shaped = ui::stored_date(text);
  if (shaped.size() != 10) return std::nullopt;
  return parse_date(shaped);
}

std::vector<Line> lines_on(Date day) {
  // The date index finds the day; the key orders it as the old walk over the
  // whole book met its lines.
  return read_lines("Select * From Cada where A1 = #" + format(Value(day), "mm/dd/yyyy") + "# order by Codigo");
}

std::vector<Line> all_lines() { return read_lines("Select * From Cada order by A1, Codigo"); }

Totals exact_totals(const std::vector<Line>& lines) {
  Totals t;
  for (const Line& l : lines) {
    if (l.operation == kDebit) t.debits = t.debits + money(l.value);
    else if (l.operation == kCredit) t.credits = t.credits + money(l.value);
  }
  return t;
}

Currency single_precision_balance(const std::vector<Line>& lines) {
  Currency credits;
  float debits = 0;
  for (const Line& l : lines) {
    if (l.operation == kCredit) credits = credits + money(l.value);
    else if (l.operation == kDebit)
      debits = static_cast<float>((Currency::from_double(debits) + money(l.value)).to_double());
  }
  return credits - Currency::from_double(debits);
}

Totals all_time_totals() {
  // Over the index on (A2, A5), which holds both columns, so the book itself
  // is never read. The index starts each sum at its word and runs to its end
  // without comparing (a bound above would cost a text comparison a row);
  // the word is then compared byte for byte, so that only the exact word
  // counts, as in the day view.
  store::Database db = open_book();
  auto sum_of = [&db](const char* operation) {
    std::string word = store::sql_quote(operation);
    store::Recordset rs =
        db.open_recordset("select sum(A5) from Cada where A2 >= " + word + " and A2 COLLATE BINARY = " + word);
    return rs.eof() ? Currency{} : money(rs[0].value());
  };
  Totals t;
  t.debits = sum_of(kDebit);
  t.credits = sum_of(kCredit);
  return t;
}

std::string write_line(const NewLine& line) {
  store::Database db = open_book();
  store::Database::Transaction unit(db);
  std::string key = store::next_key(db, store::keys::kCash);
  store::Recordset rs = db.open_recordset("SELECT* FROM CADA where CODIGO = " + store::sql_quote(key));
  if (rs.eof()) {
    rs.add_new();
    rs["codigo"] = key;
    rs["A1"] = ui::column_value(format(Value(line.date), "##/##/####"));
    rs["A2"] = line.operation;
    rs["A3"] = line.document;
    rs["A4"] = line.type;
    rs["A5"] = ui::column_value(line.value);
    rs["A6"] = line.description;
    rs["PLANO"] = line.plan;
    rs["NOME"] = line.name;
    rs.update();
  }
  rs.close();
  unit.commit();
  return key;
}

}  // namespace mz::finance::cash
