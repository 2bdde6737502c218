#pragma once
// The cash book (Caixa.Mdb, table Cada): its lines, their sums and the one
// way a line is written, shared by the cash screen and the drawer.
#include <optional>
#include <string>
#include <vector>

#include "core/value.h"
#include "store/database.h"

namespace mz::finance::cash {

inline constexpr const char* kDebit = "Débito";
inline constexpr const char* kCredit = "Crédito";

store::Database open_book();

// A line as the lists show it.
struct Line {
  std::string date, operation, document, type;
  Value value;
  std::string description, key, plan;
};

// The day a date field names: its text shaped "00/00/0000" must be a whole
// date; anything else names no day, so no line matches it.
std::optional<Date> typed_day(const std::string& text);

// The lines of one day, in key order.
std::vector<Line> lines_on(Date day);
// Every line, by date.
std::vector<Line> all_lines();

struct Totals {
  Currency debits, credits;
  Currency balance() const { return credits - debits; }
};
// Exact sums of the lines whose operation is exactly one of the two words;
// a missing value counts as nothing.
Totals exact_totals(const std::vector<Line>& lines);
// The cash balance as the screen has always shown it: credits in money, the
// debits run through a single-precision total, line by line.
Currency single_precision_balance(const std::vector<Line>& lines);
// Credits and debits of every line ever written.
Totals all_time_totals();

// What a new line holds; the key is the book's next one.
struct NewLine {
  std::string date;  // as typed, dd/mm/yyyy
  std::string operation, document, type, value, description, plan, name;
};
// Writes the line under the next key and returns that key. Two stations
// that take the same key at once: the second line is silently not written.
std::string write_line(const NewLine& line);

}  // namespace mz::finance::cash
