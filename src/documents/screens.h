#pragma once
// The commercial documents: receipts, promissory notes and trade bills, and
// the searches over the receipts and bills kept on file.
#include <memory>
#include <string>

#include "ui/runtime.h"

namespace mz::documents {

std::unique_ptr<ui::Form> make_recibo(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_busreci(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_np(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_dupli(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_budp(ui::Runtime& rt);

// Brings RECIBO to the front with the receipt of this number on it.
void show_receipt(ui::Runtime& rt, const std::string& number);
// Brings DUPLI to the front with the bill of this number on it.
void show_trade_bill(ui::Runtime& rt, const std::string& number);

}  // namespace mz::documents
