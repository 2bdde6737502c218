#include "stock/group_balances.h"

#include <algorithm>
#include <map>
#include <set>

#include "core/value.h"
#include "store/sql_text.h"

namespace mz::stock {
namespace {

using store::Recordset;
using store::Workspace;

struct Ledger {
  const char* file;
  const char* table;
};
// Read in the order the rule always reads them.
constexpr Ledger kLedgers[] = {{"ENTRA.MDB", "ENTRA"}, {"VENDA.MDB", "VENDA"}, {"SAI.MDB", "ENTRA"}};

// References per statement: a whole group of a shop fits in one, and the
// engine's limit on bound values is never reached.
constexpr size_t kReferencesPerStatement = 2000;

// The arithmetic of the balance rule: what left is summed in currency, the
// subtraction made in doubles; a null entry sum is 0, a null exit sum
// leaves the sales as they are.
double balance(const Value& in, const Value& sold, const Value& out) {
  double entered = in.is_null() ? 0 : in.to_number();
  Currency gone = sold.is_null() ? Currency{} : Currency::from_double(sold.to_number());
  if (!out.is_null()) gone = gone + Currency::from_double(out.to_number());
  return entered - gone.to_double();
}

bool passes(const SlotRule& rule, const SizeFlags& flags, int slot) {
  switch (rule.gate) {
    case Gate::None: return true;
    case Gate::SlotOneOnly: return slot != 1 || flags[0];
    case Gate::EverySlot: return flags[static_cast<size_t>(slot - 1)];
  }
  return true;
}

std::vector<int> gated_slots(const SlotRule& rule, const SizeFlags& flags) {
  std::vector<int> slots;
  for (int n = std::max(rule.first, 1); n <= std::min(rule.last, kSlots); ++n)
    if (n != rule.left_out && passes(rule, flags, n)) slots.push_back(n);
  return slots;
}

// The sums of one ledger by reference (matched in any case spelling, as
// the ledgers' statements match it), each a row of values in `slots` order.
using Sums = std::map<std::string, std::vector<Value>, ReferenceOrder>;

Sums slot_sums(const Ledger& ledger, const std::vector<int>& slots, const std::vector<std::string>& references) {
  Sums sums;
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

Value sum_of(const Sums& sums, const std::string& key, size_t column) {
  auto it = sums.find(key);
  return it == sums.end() ? Value::null() : it->second[column];
}

}  // namespace

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
  Sums in = slot_sums(kLedgers[0], slots, distinct);
  Sums sold = slot_sums(kLedgers[1], slots, distinct);
  Sums out = slot_sums(kLedgers[2], slots, distinct);
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
