#include "sales/venda/sale.h"

#include "ui/form.h"

namespace mz::sales {
namespace {

std::vector<std::array<std::string, 5>> grid_rows(const ui::Control& grid) {
  std::vector<std::array<std::string, 5>> rows;
  for (int r = 1; r < grid.grid.rows; ++r) {
    std::array<std::string, 5> row;
    for (int c = 0; c < 5 && c < grid.grid.cols; ++c) row[c] = grid.grid.cell(r, c);
    rows.push_back(row);
  }
  return rows;
}

}  // namespace

SaleOnScreen read_sale(const ui::Form& venda) {
  SaleOnScreen s;
  auto text = [&venda](const char* name) { return venda[name].text(); };
  s.codigo = text("CODIGO");
  s.c1 = text("c1");
  s.c2 = text("c2");
  s.c3 = text("c3");
  s.ven = text("VEN");
  s.k1 = text("K1");
  s.k4 = text("K4");
  s.k5 = text("k5");
  s.w1 = text("W1");
  s.w2 = text("W2");
  s.w3 = text("W3");
  s.w4 = text("W4");
  s.w5 = text("W5");
  s.w6 = text("W6");
  s.a2 = text("A2");
  s.items = grid_rows(venda["Grid1"]);
  s.instalments = grid_rows(venda["Grid3"]);
  return s;
}

}  // namespace mz::sales
