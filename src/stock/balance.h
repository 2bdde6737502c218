#pragma once
// Stock is never stored: a balance is the inflow ledger less the sales and
// the outflow ledger, summed each time it is asked for.
//
// There is one rule and every screen that shows stock calls it. The screens
// differ only in which slots they ask for, which slots a product's size flags
// (A1..A50 of GRUPO, "SIM" opens a slot) let through, and which lines they
// list; those differences are the named parameters of SlotRule:
//
//   ENTRADA and PEDIDO, EST. ATUAL ...... kSlotOneOnly (slot 1 alone, no gate)
//   CONSULTA, DETALHES .................. kDetails (50 slots, slot 1 gated by
//                                         A1, the rest ungated, zeros left out)
//   VENDA's pop-up PSEST ................ kSaleSizes (50 slots, each gated by
//                                         its flag, zeros listed)
//   GRUPOS "01 a 25" / "26 a 50" ........ kGroupsFirstHalf / kGroupsSecondHalf
//                                         (every slot gated; the second leaves
//                                         slot 45 out)
//   balanco ............................. single_slot(n), no gate
//
// Whole-reference figures (CONSULTA's "VER ESTOQUE DE FILIAIS", the general
// stock list) go by the stored piece count QTDA of each row instead: see
// reference_balance and all_reference_balances.
//
// Every figure costs one statement per ledger, whatever the number of slots
// or references.
#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace mz::store {
class Recordset;
}

namespace mz::stock {

inline constexpr int kSlots = 50;

// Which of a product's size flags let a slot be asked for.
enum class Gate {
  None,         // every slot of the range
  SlotOneOnly,  // slot 1 only when its flag says "SIM"; the others always
  EverySlot,    // each slot only when its own flag says "SIM"
};

// Which of the computed slots become lines.
enum class Listing {
  NonZero,  // a slot whose balance is not zero (a negative one included)
  All,      // every slot that passed the gate, zeros too
};

struct SlotRule {
  int first = 1;      // the slots asked for, first to last
  int last = kSlots;
  int left_out = 0;   // a slot of the range never asked for, 0 for none
  Gate gate = Gate::None;
  Listing listing = Listing::All;
};

inline constexpr SlotRule kSlotOneOnly{1, 1, 0, Gate::None, Listing::All};
inline constexpr SlotRule kDetails{1, kSlots, 0, Gate::SlotOneOnly, Listing::NonZero};
inline constexpr SlotRule kSaleSizes{1, kSlots, 0, Gate::EverySlot, Listing::All};
inline constexpr SlotRule kGroupsFirstHalf{1, 25, 0, Gate::EverySlot, Listing::All};
inline constexpr SlotRule kGroupsSecondHalf{26, kSlots, 45, Gate::EverySlot, Listing::All};
// balanco: the slot named by the scanned code, "01" to "50".
constexpr SlotRule single_slot(int slot) { return {slot, slot, 0, Gate::None, Listing::All}; }

// A product's size flags, slot n at element n - 1: true where its An of
// GRUPO is "SIM". A reference not on file has none open.
using SizeFlags = std::array<bool, kSlots>;
SizeFlags size_flags(std::string_view reference);

struct SlotLine {
  int slot;  // 1 to 50
  double balance;
};

// The lines of a reference under a rule, in slot order; the product's size
// flags are read only for a gated rule.
std::vector<SlotLine> slot_lines(std::string_view reference, const SlotRule& rule);

// The balance of every slot of a reference; slot n is element n - 1.
std::array<double, kSlots> slot_balances(std::string_view reference);
// The balance of a reference by the stored piece counts of its rows.
double reference_balance(std::string_view reference);
// References as the ledgers' statements match them: in any case spelling.
struct ReferenceOrder {
  bool operator()(const std::string& a, const std::string& b) const;
};
using ReferenceBalances = std::map<std::string, double, ReferenceOrder>;
// reference_balance of every reference that has a row in any ledger.
ReferenceBalances all_reference_balances();

// The slot balances of a whole list of references at once, for the screens
// that show a group's stock matrix: one grouped statement per ledger for the
// list, instead of one per reference, with the same slots, gates, listing
// and arithmetic as slot_lines.
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


// A balance as the screens show it: no thousands separator, a minus sign
// when negative, decimals only when the quantities had them.
std::string quantity_text(double balance);

}  // namespace mz::stock
