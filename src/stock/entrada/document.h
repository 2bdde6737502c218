#pragma once
// A movement document in its ledger: the rows of one number in table ENTRA
// of the goods-in file (ENTRA.MDB) or of the goods-out file (SAI.MDB), each
// file with its own series of numbers.
#include <string>
#include <utility>
#include <vector>

#include "store/database.h"
#include "ui/control.h"

namespace mz::stock::document {

inline constexpr const char* kEntry = "UMA ENTRADA";
inline constexpr const char* kExit = "UMA SAÍDA";

// REALIZAR as the screen keeps it: anything but an exit is an entry.
std::string direction(const std::string& text);
// The ledger the direction writes to.
store::Database ledger(const std::string& direction);
// The next number of that ledger's series, "00000001" on an empty one.
std::string next_number(const std::string& direction);

// What every row of a document repeats.
struct Header {
  std::string number;  // CODIGO
  std::string name;    // NOME
  std::string date;    // DATA, as typed
  std::string doc;     // TIPO
  std::string total;   // TOTAL, as shown
  // An order's heading (NR, TL, DES, the addresses, the size captions...),
  // column by column, repeated on every row too.
  std::vector<std::pair<std::string, std::string>> more{};
  // A movement keeps each line's label choice in ET; an order has none.
  bool with_labels = true;
};

// Replaces the document: its old rows and the grid's lines change places as
// one unit. A statement that fails is passed over and the rest goes on, as
// the recording always did. An empty slot cell is written into the grid as
// "0" before it is stored.
void record(const std::string& direction, const Header& header, ui::Control& grid);
// The document's rows go.
void remove(const std::string& direction, const std::string& number);
// The document's rows, in the order they were written.
store::Recordset rows(store::Database& db, const std::string& number);

}  // namespace mz::stock::document
