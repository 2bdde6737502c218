// "01- Grava venda": the rows of a sale in its four files. The number and the
// account and cash codes are taken inside the unit that writes them, so that
// a second station can neither take the same ones nor see half a sale.
#include "sales/venda/posting.h"

#include "core/text.h"
#include "sales/size_fields.h"
#include "stock/balance.h"
#include "store/keys.h"
#include "store/sql_text.h"
#include "store/unit.h"
#include "ui/fields.h"

namespace mz::sales {
namespace {

constexpr const char* kConsumer = "Consumidor final";

using Line = std::array<std::string, 5>;

store::Recordset rows_of(store::Database& db, const char* table, const std::string& key) {
  return db.open_recordset(std::string("SELECT* FROM ") + table + " where CODIGO = " + store::sql_quote(key));
}

// Money, quantities and dates typed on the screen: an empty field stores null.
Value typed(const std::string& text) { return ui::column_value(text); }

void write_lines(store::Database& venda, const SaleOnScreen& s, const std::string& number, const Date& today) {
  store::Recordset rs = rows_of(venda, "VENDA", number);
  if (!rs.eof()) return;  // the number is taken: its rows are not ours to add to
  for (const Line& line : s.items) {
    rs.add_new();
    rs["CODIGO"] = number;
    rs["NOME"] = s.c1;
    rs["DATA"] = Value(today);
    rs["VENDEDOR"] = s.ven;
    rs["PAGAMENTO"] = s.k4;
    rs["VALOR"] = typed(s.w3);
    rs["PARCELA"] = s.k5;
    rs["QTDA"] = typed(line[0]);
    rs["REFERENCIA"] = mid(line[1], 2, 4);
    rs["V1"] = line[1];
    rs["V2"] = line[2];
    rs["V3"] = line[3];
    rs["V4"] = line[4];
    // The code's two last characters name the size slot that takes the quantity.
    const int slot = size_slot(line[1], 6);
    for (int n = 1; n <= stock::kSlots; ++n) rs["X" + std::to_string(n)] = n == slot ? typed(line[0]) : Value(0);
    rs.update();
  }
}

void closing_header(store::Recordset& rs, const SaleOnScreen& s, const std::string& number, const Date& today) {
  rs["CODIGO"] = number;
  rs["W1"] = s.w1;
  rs["W2"] = s.w2;
  rs["W3"] = s.w3;
  rs["W4"] = s.w4;
  rs["W5"] = s.w5;
  rs["W6"] = s.w6;
  rs["DATA"] = Value(today);
  rs["VENDEDOR"] = s.ven;
  rs["C1"] = s.c1;
  rs["C2"] = s.c2;
  rs["C3"] = s.c3;
}

// One row for a sale closed at once; one per instalment line otherwise, K1 to
// K5 then holding the line's columns.
void write_closing(store::Database& venda1, const SaleOnScreen& s, const std::string& number, const Date& today) {
  store::Recordset rs = rows_of(venda1, "VENDA", number);
  if (!rs.eof()) return;
  if (s.instalments.empty()) {
    rs.add_new();
    closing_header(rs, s, number, today);
    rs["K1"] = s.k1;
    rs["K4"] = s.k4;
    rs["K5"] = s.k5;
    rs.update();
    return;
  }
  for (const Line& line : s.instalments) {
    rs.add_new();
    closing_header(rs, s, number, today);
    for (int k = 0; k < 5; ++k) rs["K" + std::to_string(k + 1)] = line[k];
    rs.update();
  }
}

// Every account row takes its own code, and is added only under a free one.
template <typename Fill>
void add_account(store::Database& contas, Fill fill) {
  std::string code = store::next_key(contas, store::keys::kAccount);
  store::Recordset rs = rows_of(contas, "CADA", code);
  if (!rs.eof()) return;
  rs.add_new();
  rs["CODIGO"] = code;
  fill(rs);
  rs.update();
}

void settled_account(store::Database& contas, const SaleOnScreen& s, const std::string& number, const Date& today,
                     const std::string& amount, const char* history) {
  add_account(contas, [&](store::Recordset& rs) {
    rs["D1"] = "Receber";
    rs["D2"] = Value(today);
    rs["D3"] = Value(today);
    rs["D4"] = number;
    rs["D5"] = typed(amount);
    rs["D6"] = history;
    rs["D7"] = s.k4;
    rs["D8"] = "";
    rs["D9"] = s.c1.empty() ? kConsumer : s.c1;
    rs["BX"] = "F";
    rs["PG"] = Value(today);
    rs["VP"] = s.a2;  // the name of size slot 2, as the sale has always stored it
    rs["D10"] = "Venda";
    rs["GRUPO"] = "Venda";
  });
}

void open_account(store::Database& contas, const SaleOnScreen& s, const std::string& number, const Date& today,
                  const Line& line) {
  add_account(contas, [&](store::Recordset& rs) {
    rs["D1"] = "Receber";
    rs["D2"] = Value(today);
    rs["D3"] = typed(line[1]);
    rs["D4"] = number;
    rs["D5"] = typed(line[2]);
    rs["D6"] = "Venda Balcão Nr: " + number;
    rs["D7"] = s.k4;
    rs["D8"] = "";
    rs["D9"] = s.c1;
    rs["D10"] = "Venda parcelada";
    rs["GRUPO"] = "Venda parcelada";
    rs["NOME"] = "";
    rs["BX"] = "A";
  });
}

// Nothing typed as paid is nothing paid.
bool is_zero(const std::string& money) {
  Value v = typed(money);
  return v.is_empty() || v.to_currency() == Currency();
}

// Settled at once for the total; with instalments, a settled down payment when
// something was paid and one open row a line.
void write_accounts(store::Database& contas, const SaleOnScreen& s, const std::string& number, const Date& today) {
  if (s.instalments.empty()) return settled_account(contas, s, number, today, s.w3, "Venda Balcão");
  if (!is_zero(s.w4)) settled_account(contas, s, number, today, s.w4, "Entrada - Venda Balcão");
  for (const Line& line : s.instalments) open_account(contas, s, number, today, line);
}

// The whole amount typed as paid is credited, change and all.
void write_cash(store::Database& caixa, const SaleOnScreen& s, const std::string& number, const Date& today) {
  std::string code = store::next_key(caixa, store::keys::kCash);
  store::Recordset rs = rows_of(caixa, "CADA", code);
  if (!rs.eof()) return;
  rs.add_new();
  rs["codigo"] = code;
  rs["A1"] = Value(today);
  rs["A2"] = "Crédito";
  rs["A3"] = number;
  rs["A4"] = s.k4;
  rs["A5"] = typed(s.w4);
  rs["A6"] = s.c1;
  rs["PLANO"] = s.ven;
  rs.update();
}

}  // namespace

std::string post_sale(const SaleOnScreen& sale, const Date& today) {
  Date day = today.date_only();
  store::Unit unit({"VENDA.MDB", "VENDA1.MDB", "Contas.Mdb", "Caixa.Mdb"});
  store::Database venda = unit.database("VENDA.MDB");
  store::Database venda1 = unit.database("VENDA1.MDB");
  store::Database contas = unit.database("Contas.Mdb");
  store::Database caixa = unit.database("Caixa.Mdb");
  std::string number = store::next_key(venda, store::keys::kSale);
  write_lines(venda, sale, number, day);
  write_closing(venda1, sale, number, day);
  write_accounts(contas, sale, number, day);
  write_cash(caixa, sale, number, day);
  unit.commit();
  return number;
}

}  // namespace mz::sales
