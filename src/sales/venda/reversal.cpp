#include "sales/venda/reversal.h"

#include "sales/venda/search.h"
#include "store/keys.h"
#include "store/sql_text.h"
#include "store/unit.h"

namespace mz::sales {
namespace {

constexpr const char* kMarker = "Estorno Venda";

void add_marker(store::Database& contas, const Reversal& sale, const Date& today) {
  std::string code = store::next_key(contas, store::keys::kAccount);
  store::Recordset rs = contas.open_recordset("SELECT* FROM Cada where CODIGO = " + store::sql_quote(code));
  if (!rs.eof()) return;  // the code is taken: its row is not ours to write over
  rs.add_new();
  rs["CODIGO"] = code;
  rs["D1"] = "Receber";
  rs["D2"] = Value(today);
  rs["D3"] = Value(today);
  rs["D4"] = sale.number;
  rs["D5"] = Value("0");
  rs["D6"] = "Estono - " + sale.ven;
  rs["D7"] = sale.k4;
  rs["D8"] = kMarker;
  rs["D9"] = sale.c1;
  rs["BX"] = "F";
  rs["PG"] = Value(today);
  rs["VP"] = sale.a2;
  rs["D10"] = kMarker;
  rs["GRUPO"] = kMarker;
  rs.update();
}

}  // namespace

void reverse_sale(const Reversal& sale, const Date& today) {
  Date day = today.date_only();
  store::Unit unit({"VENDA.MDB", "VENDA1.MDB", "Contas.Mdb"});
  store::Database venda = unit.database("VENDA.MDB");
  store::Database venda1 = unit.database("VENDA1.MDB");
  store::Database contas = unit.database("Contas.Mdb");
  const std::string number = store::sql_quote(sale.number);
  venda.execute("DELETE FROM VENDA WHERE CODIGO = " + number);
  venda1.execute("DELETE FROM VENDA WHERE CODIGO = " + number);
  // Settled rows and open instalments alike, whatever was paid on them.
  contas.execute("DELETE FROM Cada WHERE D4 = " + number);
  add_marker(contas, sale, day);
  unit.commit();
}

namespace venda {

void reverse_recalled_sale(ui::Runtime& rt, ui::Form& f) {
  const std::string number = f["CODIGO"].text();
  if (number.empty()) {
    rt.message("Realize a consulta da venda, dando dois cliques na tabela acima.");
    return;
  }
  if (rt.message("Deseja realmente estornar a venda de número: " + number, ui::Buttons::YesNo) != ui::Answer::Yes)
    return;
  reverse_sale({number, f["VEN"].text(), f["K4"].text(), f["c1"].text(), f["A2"].text()}, rt.host().today());
  rt.message("Venda estornada com sucesso.");
  search_period(rt, f);
}

}  // namespace venda
}  // namespace mz::sales
