#include "stock/balance.h"

#include <algorithm>
#include <set>
#include <map>

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

// References per statement: a whole group of a shop fits in one, and the
// engine's limit on bound values is never reached.
constexpr size_t kReferencesPerStatement = 2000;

// The asked slots a product's flags let through.
std::vector<int> gated_slots(const SlotRule& rule, const SizeFlags& flags) {
  std::vector<int> slots = asked_slots(rule);
  std::erase_if(slots, [&](int n) { return !passes(rule, flags, n); });
  return slots;
}

// The sums of one ledger by reference (matched in any case spelling, as
// the ledgers' statements match it), each a row of values in `slots` order.
using SlotSums = std::map<std::string, std::vector<Value>, ReferenceOrder>;

SlotSums group_slot_sums(const Ledger& ledger, const std::vector<int>& slots,
                         const std::vector<std::string>& references) {
  SlotSums sums;
  std::string columns;
  for (int n : slots) columns += ", sum(X" + std::to_string(n) + ")";
  store::Database db = Workspace::open_database(ledger.file);
  for (size_t first = 0; first < references.size(); first += kReferencesPerStatement) {
    std::string list;
    for (size_t i = first; i < std::min(references.size(), first + kReferencesPerStatement); ++i)
      list += (i == first ? "" : ", ") + store::sql_quote(references[i]);
    Recordset rs = db.open_recordset("select REFERENCIA" + columns + " from " + ledger.table +
                                     " where REFERENCIA in (" + list + ") group by REFERENCIA");
    for (; !rs.eof(); rs.move_next()) {
      std::vector<Value>& row = sums[rs[0].text()];
      row.resize(slots.size(), Value::null());
      for (size_t i = 0; i < slots.size(); ++i) row[i] = rs[i + 1];
    }
  }
  return sums;
}

Value sum_of(const SlotSums& sums, const std::string& key, size_t column) {
  auto it = sums.find(key);
  return it == sums.end() ? Value::null() : it->second[column];
}

}  // namespace

SizeFlags size_flags(std::string_view reference) {
  Recordset rs = Workspace::open_database("REFE.MDB").open_recordset("SELECT* FROM GRUPO where GR = " +
                                                                       store::sql_quote(reference));
  return rs.eof() ? SizeFlags{} : size_flags_of(rs);
}

std::vector<SlotLine> slot_lines(std::string_view reference, const SlotRule& rule) {
  const SizeFlags flags = rule.gate == Gate::None ? SizeFlags{} : size_flags(reference);
  const std::vector<int> slots = gated_slots(rule, flags);
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

SizeFlags size_flags_of(Recordset& product) {
  SizeFlags flags{};
  for (int n = 1; n <= kSlots; ++n) flags[static_cast<size_t>(n - 1)] = product["A" + std::to_string(n)].text() == "SIM";
  return flags;
}

std::vector<std::vector<SlotLine>> group_slot_lines(const std::vector<FlaggedReference>& references,
                                                    const SlotRule& rule) {
  // Only the slots some reference of the list opens are summed at all.
  std::vector<std::vector<int>> own_slots;
  std::vector<bool> asked(kSlots + 1, false);
  std::vector<std::string> distinct;
  std::set<std::string, ReferenceOrder> seen;
  for (const FlaggedReference& r : references) {
    own_slots.push_back(gated_slots(rule, r.flags));
    for (int n : own_slots.back()) asked[static_cast<size_t>(n)] = true;
    if (seen.insert(r.reference).second) distinct.push_back(r.reference);
  }
  std::vector<int> slots;
  std::vector<size_t> column_of(kSlots + 1, 0);
  for (int n = 1; n <= kSlots; ++n)
    if (asked[static_cast<size_t>(n)]) {
      column_of[static_cast<size_t>(n)] = slots.size();
      slots.push_back(n);
    }

  std::vector<std::vector<SlotLine>> lines(references.size());
  if (slots.empty()) return lines;
  SlotSums in = group_slot_sums(kInflow, slots, distinct);
  SlotSums sold = group_slot_sums(kSales, slots, distinct);
  SlotSums out = group_slot_sums(kOutflow, slots, distinct);
  for (size_t r = 0; r < references.size(); ++r) {
    const std::string& key = references[r].reference;
    for (int n : own_slots[r]) {
      size_t c = column_of[static_cast<size_t>(n)];
      double value = balance(sum_of(in, key, c), sum_of(sold, key, c), sum_of(out, key, c));
      if (rule.listing == Listing::All || value != 0) lines[r].push_back({n, value});
    }
  }
  return lines;
}

}  // namespace mz::stock
