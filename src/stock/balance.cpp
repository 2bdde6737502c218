#include "stock/balance.h"

#include <algorithm>

#include "core/value.h"
#include "store/collation.h"
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

// The slots a rule asks the ledgers for.
std::vector<int> asked_slots(const SlotRule& rule) {
  std::vector<int> slots;
  for (int n = std::max(rule.first, 1); n <= std::min(rule.last, kSlots); ++n)
    if (n != rule.left_out) slots.push_back(n);
  return slots;
}

// One statement per ledger sums all the slots asked for at once.
Recordset slot_sums(const Ledger& ledger, const std::vector<int>& slots, std::string_view reference) {
  std::string sql = "select ";
  for (size_t i = 0; i < slots.size(); ++i) sql += (i ? ", sum(X" : "sum(X") + std::to_string(slots[i]) + ")";
  sql += std::string(" from ") + ledger.table + " where REFERENCIA = " + store::sql_quote(reference);
  return Workspace::open_database(ledger.file).open_recordset(sql);
}

bool passes(const SlotRule& rule, const SizeFlags& flags, int slot) {
  switch (rule.gate) {
    case Gate::None: return true;
    case Gate::SlotOneOnly: return slot != 1 || flags[0];
    case Gate::EverySlot: return flags[static_cast<size_t>(slot - 1)];
  }
  return true;
}

Value reference_sum(const Ledger& ledger, std::string_view reference) {
  Recordset rs = Workspace::open_database(ledger.file)
                     .open_recordset(std::string("select sum(QTDA)from ") + ledger.table +
                                     " where REFERENCIA = " + store::sql_quote(reference));
  return rs[0];
}

using Sums = std::map<std::string, Value, ReferenceOrder>;

Sums sums_by_reference(const Ledger& ledger) {
  Sums sums;
  Recordset rs = Workspace::open_database(ledger.file)
                     .open_recordset(std::string("select REFERENCIA, sum(QTDA) from ") + ledger.table +
                                     " group by REFERENCIA");
  for (; !rs.eof(); rs.move_next()) sums[rs[0].text()] = rs[1];
  return sums;
}

}  // namespace

SizeFlags size_flags(std::string_view reference) {
  SizeFlags flags{};
  Recordset rs = Workspace::open_database("REFE.MDB").open_recordset("SELECT* FROM GRUPO where GR = " +
                                                                       store::sql_quote(reference));
  if (rs.eof()) return flags;
  for (int n = 1; n <= kSlots; ++n) flags[static_cast<size_t>(n - 1)] = rs["A" + std::to_string(n)].text() == "SIM";
  return flags;
}

std::vector<SlotLine> slot_lines(std::string_view reference, const SlotRule& rule) {
  const SizeFlags flags = rule.gate == Gate::None ? SizeFlags{} : size_flags(reference);
  std::vector<int> slots;
  for (int n : asked_slots(rule))
    if (passes(rule, flags, n)) slots.push_back(n);
  std::vector<SlotLine> lines;
  if (slots.empty()) return lines;
  Recordset in = slot_sums(kInflow, slots, reference);
  Recordset sold = slot_sums(kSales, slots, reference);
  Recordset out = slot_sums(kOutflow, slots, reference);
  for (size_t i = 0; i < slots.size(); ++i) {
    double value = balance(in[i], sold[i], out[i]);
    if (rule.listing == Listing::All || value != 0) lines.push_back({slots[i], value});
  }
  return lines;
}

std::array<double, kSlots> slot_balances(std::string_view reference) {
  std::array<double, kSlots> result{};
  for (const SlotLine& line : slot_lines(reference, SlotRule{}))
    result[static_cast<size_t>(line.slot - 1)] = line.balance;
  return result;
}

double reference_balance(std::string_view reference) {
  Value in = reference_sum(kInflow, reference);
  Value sold = reference_sum(kSales, reference);
  Value out = reference_sum(kOutflow, reference);
  return balance(in, sold, out);
}

bool ReferenceOrder::operator()(const std::string& a, const std::string& b) const {
  return store::compare_text(a, b) < 0;
}

ReferenceBalances all_reference_balances() {
  Sums in = sums_by_reference(kInflow);
  Sums sold = sums_by_reference(kSales);
  Sums out = sums_by_reference(kOutflow);
  ReferenceBalances result;
  auto value_of = [](const Sums& sums, const std::string& ref) {
    auto it = sums.find(ref);
    return it == sums.end() ? Value::null() : it->second;
  };
  for (const auto* sums : {&in, &sold, &out})
    for (const auto& [ref, unused] : *sums)
      if (!result.count(ref)) result[ref] = balance(value_of(in, ref), value_of(sold, ref), value_of(out, ref));
  return result;
}

std::string quantity_text(double balance) { return Value(balance).text(); }

}  // namespace mz::stock
