#pragma once
// The slot balances of a whole list of references at once, for the screens
// that show a group's stock matrix: one grouped statement per ledger for the
// list, instead of one per reference, with the same slots, gates, listing
// and arithmetic as slot_lines.
#include <string>
#include <vector>

#include "stock/balance.h"
#include "store/database.h"

namespace mz::stock {

// A reference with its size flags as the caller read them from GRUPO.
struct FlaggedReference {
  std::string reference;
  SizeFlags flags{};
};

// slot_lines of each reference under the rule, in the order given; a
// reference named twice gets its lines twice.
std::vector<std::vector<SlotLine>> group_slot_lines(const std::vector<FlaggedReference>& references,
                                                    const SlotRule& rule);

// The size flags of the GRUPO row the recordset stands on: "SIM" opens a
// slot, anything else keeps it shut.
SizeFlags size_flags_of(store::Recordset& product);

}  // namespace mz::stock
