#include "finance/caixa/day_print.h"

#include "core/format.h"
#include "finance/caixa/cash_book.h"
#include "ui/fields.h"

namespace mz::finance::cash {

void fill_day_table(ui::Runtime& rt, const DayPrint& print) {
  std::string hora = format(Value(rt.host().now()), "hh:mm:ss");
  std::optional<Date> day = typed_day(print.day);
  std::vector<Line> lines;
  if (day) lines = lines_on(*day);
  store::Database db = store::Workspace::open_database("\\Rela2cx.Mdb");
  store::Database::Transaction unit(db);
  db.execute("Delete from Rela2;");
  store::Recordset rs = db.open_recordset("SELECT* FROM Rela2 order by A1");
  for (const Line& l : lines) {
    rs.add_new();
    rs["CODIGO"] = l.key;
    rs["A1"] = ui::column_value(l.date);
    rs["hora"] = hora;
    rs["A2"] = l.operation;
    rs["A3"] = l.document;
    rs["A4"] = "Forma: " + l.type;
    rs["A6"] = l.description + " " + l.document;
    rs["limi"] = print.balance;
    rs["SALDO"] = print.balance;
    rs["NOME"] = print.name;
    if (l.operation == kDebit) {
      rs["DE"] = l.value;
      rs["L"] = "D";
    } else if (l.operation == kCredit) {
      rs["CR"] = l.value;
      rs["L"] = "C";
    }
    rs.update();
  }
  rs.close();
  unit.commit();
}

}  // namespace mz::finance::cash
