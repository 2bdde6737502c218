#include "stock/balance.h"

#include "core/value.h"
#include "store/database.h"
#include "store/sql_text.h"

namespace mz::stock {
namespace {

using store::Database;
using store::Recordset;
using store::Workspace;

// The three ledgers in the order they are always read.
struct Ledger {
  const char* file;
  const char* table;
};
constexpr Ledger kInflow{"ENTRA.MDB", "ENTRA"};
constexpr Ledger kSales{"VENDA.MDB", "VENDA"};
constexpr Ledger kOutflow{"SAI.MDB", "ENTRA"};

// Entries less (sales + exits): the sum of what left is taken in currency
// arithmetic and the subtraction in doubles, as the figures always were. A
// null sum is 0, and a null exit sum leaves the sales as they are.
double balance(const Value& in, const Value& sold, const Value& out) {
  double entered = in.is_null() ? 0 : in.to_number();
  Currency gone = sold.is_null() ? Currency{} : Currency::from_double(sold.to_number());
  if (!out.is_null()) gone = gone + Currency::from_double(out.to_number());
  return entered - gone.to_double();
}

// One statement per ledger sums all 50 slots at once.
std::string slot_sums_sql(const Ledger& ledger) {
  std::string sql = "select ";
  for (int n = 1; n <= kSlots; ++n) sql += (n > 1 ? ", sum(X" : "sum(X") + std::to_string(n) + ")";
  return sql + " from " + ledger.table + " where REFERENCIA = ";
}

Recordset slot_sums(const Ledger& ledger, std::string_view reference) {
  static const std::string inflow = slot_sums_sql(kInflow), sales = slot_sums_sql(kSales);
  const std::string& prefix = std::string_view(ledger.table) == "VENDA" ? sales : inflow;
  return Workspace::open_database(ledger.file).open_recordset(prefix + store::sql_quote(reference));
}

Value reference_sum(const Ledger& ledger, std::string_view reference) {
  Recordset rs = Workspace::open_database(ledger.file)
                     .open_recordset(std::string("select sum(QTDA)from ") + ledger.table +
                                     " where REFERENCIA = " + store::sql_quote(reference));
  return rs[0];
}

std::map<std::string, Value> sums_by_reference(const Ledger& ledger) {
  std::map<std::string, Value> sums;
  Recordset rs = Workspace::open_database(ledger.file)
                     .open_recordset(std::string("select REFERENCIA, sum(QTDA) from ") + ledger.table +
                                     " group by REFERENCIA");
  for (; !rs.eof(); rs.move_next()) sums[rs[0].text()] = rs[1];
  return sums;
}

}  // namespace

std::array<double, kSlots> slot_balances(std::string_view reference) {
  Recordset in = slot_sums(kInflow, reference);
  Recordset sold = slot_sums(kSales, reference);
  Recordset out = slot_sums(kOutflow, reference);
  std::array<double, kSlots> result{};
  for (size_t n = 0; n < kSlots; ++n) result[n] = balance(in[n], sold[n], out[n]);
  return result;
}

double reference_balance(std::string_view reference) {
  Value in = reference_sum(kInflow, reference);
  Value sold = reference_sum(kSales, reference);
  Value out = reference_sum(kOutflow, reference);
  return balance(in, sold, out);
}

std::map<std::string, double> all_reference_balances() {
  auto in = sums_by_reference(kInflow);
  auto sold = sums_by_reference(kSales);
  auto out = sums_by_reference(kOutflow);
  std::map<std::string, double> result;
  auto value_of = [](const std::map<std::string, Value>& sums, const std::string& ref) {
    auto it = sums.find(ref);
    return it == sums.end() ? Value::null() : it->second;
  };
  for (const auto* sums : {&in, &sold, &out})
    for (const auto& [ref, unused] : *sums)
      if (!result.count(ref)) result[ref] = balance(value_of(in, ref), value_of(sold, ref), value_of(out, ref));
  return result;
}

}  // namespace mz::stock
