#include "stock/pedido/order.h"

#include "core/format.h"
#include "stock/entrada/band.h"
#include "stock/entrada/document.h"
#include "stock/pedido/heading.h"
#include "ui/fields.h"

namespace mz::stock::pedido {

namespace {

std::string next_number() { return document::next_number(document::kExit); }

void format_number(ui::Form& f) { f["EE1"].set_text(format(Value(f["EE1"].text()), "00000000")); }

Currency amount(const std::string& text) { return text.empty() ? Currency{} : Value(text).to_currency(); }

}  // namespace

void record(ui::Runtime& rt, ui::Form& f) {
  // Three fields the order cannot go without: the focus goes to the first
  // empty one, with no word.
  for (const char* name : {"EE3", "B24", "EE4"})
    if (f[name].text().empty()) return rt.set_focus(f[name]);
  rt.wait_pointer(true);
  document::Header header{f["EE1"].text(), f["EE3"].text(), f["EE2"].text(), f["EE4"].text(), f["TT"].text(),
                          repeated_columns(f), false};
  ui::resume_style([&] { document::record(document::kExit, header, f["Grid1"]); });
  rt.wait_pointer(false);
  rt.message("Pedido gravado com sucesso.");
}

void open_order(ui::Runtime& rt, ui::Form& f) {
  if (rt.message("Deseja consultar um novo movimento?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
    return;
  band::reset_totals(f);
  ui::resume_style([&] { format_number(f); });
  band::empty_grid(f);
  store::Database db = document::ledger(document::kExit);
  store::Recordset rs = document::rows(db, f["EE1"].text());
  if (rs.eof()) {
    f["EE1"].set_text(next_number());
    return;
  }
  show_heading(f, rs);
  int lines = 0;
  for (; !rs.eof(); rs.move_next(), ++lines) band::add_recorded_line(f, rs);
  f["ITEM"].set_text(std::to_string(lines));
}

void new_order(ui::Runtime& rt, ui::Form& f) {
  for (const char* name : {"EE3", "EE4", "EE5", "ITEM"}) f[name].set_text("");
  band::clear_line(f);
  band::reset_totals(f);
  band::empty_grid(f);
  clear_addresses(f);
  f["DES"].set_text("0,00");
  f["EE2"].set_text(ui::today_text(rt));
  f["EE1"].set_text(next_number());
  rt.set_focus(f["EE4"]);
}

void remove_order(ui::Runtime& rt, ui::Form& f) {
  if (rt.message("Deseja realmente apagar está entrada?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
    return;
  document::remove(document::kExit, f["EE1"].text());
}

void copy_to_entrada(ui::Runtime& rt, ui::Form& f) {
  ui::Form& entrada = rt.show("ENTRADA");
  entrada["EE3"].set_text(f["EE3"].text());
  band::empty_grid(entrada);
  store::Database db = document::ledger(document::kExit);
  // The totals there grow by the order's lines, as "< Busca" adds them up.
  for (store::Recordset rs = document::rows(db, f["EE1"].text()); !rs.eof(); rs.move_next())
    band::add_recorded_line(entrada, rs, true);
  rt.close("PEDIDO");
}

void print_order(ui::Form& f, ui::Report& report, const char* templ) {
  report.data_files = "\\SAI.mdb";
  report.selection_formula = "{ENTRA.CODIGO} = '" + f["EE1"].text() + "'";
  report.report_file_name = templ;
  report.action(1);
}

void apply_discount(ui::Form& f) {
  if (f["DES"].text().empty()) return;
  ui::resume_style([&] {
    f["TT"].set_text(format(Value(amount(f["TL"].text()) - amount(f["DES"].text())), "###,##0.00"));
  });
}

}  // namespace mz::stock::pedido
