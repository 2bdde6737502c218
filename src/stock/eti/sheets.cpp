#include "stock/eti/sheets.h"

#include <map>
#include <optional>

#include "core/format.h"
#include "core/regional.h"
#include "core/text.h"
#include "store/database.h"
#include "store/sql_text.h"

namespace mz::stock::eti {

namespace {

constexpr Sheet kSheets[] = {
    {"25 ETIQUETAS POR FOLHA", Rewrite::None, "BARRA2.rpt", "BARRA2X.rpt", true},
    {"25 ETIQUETAS POR FOLHA-MOD.2", Rewrite::Instalments, "BARRA4.rpt", "BARRA4.rpt", true},
    {"25 ETIQUETAS POR FOLHA-MOD.3", Rewrite::ShopAndPrices, "BARRA5.rpt", "BARRA5.rpt", true},
    {"30 ETIQUETAS POR FOLHA", Rewrite::SizeLine, "BARRA30.rpt", "BARRA30.rpt", false},
    {"60 ETIQUETAS POR FOLHA", Rewrite::None, "BARRA3.rpt", "BARRA3X.rpt", true},
    {"60 ETIQUETAS POR FOLHA-PIMACO", Rewrite::None, "BARRA3P.rpt", "BARRA3XP.rpt", true},
    {"65 ETIQUETAS POR FOLHA-PIMACO", Rewrite::None, "BARRA65.rpt", "BARRA65.rpt", true},
};

struct Product {
  std::string description, size_line_head, cash, credit;  // E2, E4, E9, E11
};

std::optional<Product> product(store::Database& refe, const std::string& reference) {
  store::Recordset rs = refe.open_recordset("SELECT* FROM GRUPO where GR = " + store::sql_quote(reference));
  if (rs.eof()) return std::nullopt;
  return Product{rs["E2"].text(), rs["E4"].text(), rs["E9"].text(), rs["E11"].text()};
}

// "33,33 = 100,00": the credit price in three, and the whole.
std::string instalments(const std::string& credit) {
  double whole = parse_number(credit).value_or(0);
  return format(Value(whole / 3), "###,##0.00") + " = " + format(Value(credit), "###,##0.00");
}

void rewrite_row(store::Recordset& rs, Rewrite rewrite, const Product& p, const std::string& shop_name) {
  rs.edit();
  if (rewrite == Rewrite::SizeLine) rs["TIPO"] = p.size_line_head + "- Tam: " + mid(rs["TIPO"].text(), 9);
  if (rewrite == Rewrite::Instalments) rs["V3"] = instalments(p.credit);
  rs["NN"] = shop_name;
  rs["VALOR"] = p.cash;
  if (rewrite != Rewrite::Instalments) {
    rs["PRAZO"] = p.credit;
    rs["DES"] = p.description;
  }
  rs.update();
}

}  // namespace

std::span<const Sheet> sheets() { return kSheets; }

const Sheet* find_sheet(std::string_view option) {
  for (const Sheet& sheet : kSheets)
    if (option == sheet.option) return &sheet;
  return nullptr;
}

void rewrite_labels(Rewrite rewrite, const std::string& shop_name) {
  if (rewrite == Rewrite::None) return;
  store::Database refe = store::Workspace::open_database("\\REFE.Mdb");
  std::map<std::string, std::optional<Product>> products;  // each reference read once
  store::Database barra = store::Workspace::open_database("\\BARRA.Mdb");
  store::Database::Transaction unit(barra);
  for (store::Recordset rs = barra.open_recordset("SELECT* FROM BARRA ORDER BY Codigo"); !rs.eof(); rs.move_next()) {
    std::string reference = left(rs["TIPO"].text(), 4);
    auto known = products.find(reference);
    if (known == products.end()) known = products.emplace(reference, product(refe, reference)).first;
    if (known->second) rewrite_row(rs, rewrite, *known->second, shop_name);
  }
  unit.commit();
}

}  // namespace mz::stock::eti
