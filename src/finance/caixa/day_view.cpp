#include "finance/caixa/day_view.h"

#include "core/format.h"
#include "ui/fields.h"

namespace mz::finance::cash {

namespace {

constexpr uint32_t kCyan = 0xFFFF00;  // blue-green-red

const std::vector<std::string> kHeading = {"Data",      "Operação",   "Nº Doc.",    "Tipo",
                                           "Valor",     "Descritivo", "Lançamento", "Grupo"};

}  // namespace

std::string figure_text(Currency amount) { return format(Value(amount), "###,##0.00"); }

void show_lines(ui::Form& f, const std::vector<Line>& lines) {
  std::vector<std::vector<std::string>> rows;
  rows.reserve(lines.size());
  for (const Line& l : lines)
    rows.push_back({l.date, l.operation, l.document, l.type, format(l.value, "###,###.00"), l.description, l.key, l.plan});
  ui::show_rows(f["Grid1"], kHeading, rows);
  ui::zebra_grid(f["Grid1"], 1, kCyan);
  Totals t = exact_totals(lines);
  f["A7"].set_text(figure_text(t.debits));
  f["A8"].set_text(figure_text(t.credits));
}

void show_day_balance(ui::Runtime& rt, ui::Form& f) {
  f["A9"].set_text(figure_text(single_precision_balance(lines_on(rt.host().today()))));
}

void show_general_balance(ui::Form& f) { f["AX"].set_text(figure_text(all_time_totals().balance())); }

void carrega(ui::Runtime& rt, ui::Form& f) {
  f["A5"].set_text("0,00");
  std::vector<Line> today = lines_on(rt.host().today());
  show_lines(f, today);
  f["A9"].set_text(figure_text(single_precision_balance(today)));
  show_general_balance(f);
}

}  // namespace mz::finance::cash
