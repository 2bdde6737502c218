#pragma once
// The label sheets ETI offers: the template each prints with, with or
// without the price, whether the kept margins apply, and how the BARRA rows
// are rewritten for it first.
#include <span>
#include <string>
#include <string_view>

namespace mz::stock::eti {

enum class Rewrite {
  None,
  SizeLine,       // the size line becomes "<E4>- Tam: <size>"; the shop, both prices, the description
  ShopAndPrices,  // the shop's name, both prices and the description
  Instalments,    // the shop's name, the cash price and three instalments ("33,33 = 100,00")
};

struct Sheet {
  const char* option;          // as Combo1 lists it
  Rewrite rewrite;
  const char* report;          // "sem valor" unchecked
  const char* report_no_price; // "sem valor" checked
  bool margins;                // the kept margins override the template's
};

std::span<const Sheet> sheets();
// The sheet of an option, or nullptr for a text that is none of them.
const Sheet* find_sheet(std::string_view option);

// Rewrites every BARRA row whose reference GRUPO holds, as one unit; the
// other rows stay as they were.
void rewrite_labels(Rewrite rewrite, const std::string& shop_name);

}  // namespace mz::stock::eti
