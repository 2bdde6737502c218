#pragma once
// Key numbering: the highest key present plus one, in the key's zero mask,
// or the first value on an empty table. The maximum is a text maximum, so a
// key that outgrew its width ("10000") sorts below "9999" and is offered again.
#include <string>

#include "store/database.h"

namespace mz::store {

struct KeyRule {
  const char* statement;
  const char* mask;
  const char* first;
};

namespace keys {
inline constexpr KeyRule kReference{"Select max(GR) from GRUPO", "0000", "0001"};            // REFE.MDB
inline constexpr KeyRule kCustomer{"Select max(codigo) from Cada", "0000", "0001"};          // CADA.MDB
inline constexpr KeyRule kEmployee{"Select max(X1) from SALA", "0000", "0001"};              // SALA.Mdb
inline constexpr KeyRule kReceipt{"Select max(codigo) from RECI", "00000", "00001"};         // RECI.Mdb
inline constexpr KeyRule kTradeBill{"Select max(codigo) from DP ", "00000", "00001"};        // DP.Mdb
inline constexpr KeyRule kSupplier{"Select max(a1) from cli", "000000", "000001"};           // FORNEX.MDB
inline constexpr KeyRule kPhone{"Select max(ID) from TELEFONE", "000000", "000001"};         // TELEFONE.MDB
inline constexpr KeyRule kAccount{"Select max(codigo) from Cada", "000000", "000001"};       // Contas.Mdb
inline constexpr KeyRule kCash{"Select max(codigo) from Cada", "0000000", "0000001"};        // Caixa.Mdb
inline constexpr KeyRule kMovement{"Select max(CODIGO) from ENTRA", "00000000", "00000001"};  // ENTRA.MDB, SAI.MDB
inline constexpr KeyRule kSale{"Select max(CODIGO) from venda", "00000000", "00000001"};     // VENDA.Mdb
}  // namespace keys

std::string next_key(Database& db, const KeyRule& rule);

}  // namespace mz::store
