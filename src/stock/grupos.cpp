// GRUPOS: the stock of one product group, a reference a line and a size a
// column, built half the size grid at a time; the table on the screen goes
// to the preview or to a spreadsheet.
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "records/grade.h"
#include "stock/balance.h"
#include "stock/reports_screens.h"
#include "stock/size_captions.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "ui/fields.h"
#include "ui/report.h"

namespace mz::stock {

using ui::ControlKind;

namespace {

constexpr int kHalfSlots = 25;
// Reference, description and the two prices come before the sizes.
constexpr int kProductColumns = 4;
// The grid's columns: the product's, the 25 sizes and a closing blank one.
constexpr int kGridColumns = kProductColumns + kHalfSlots + 1;

const std::vector<std::string> kProductHeading = {"Refer. ", "Descrição do produto                        ",
                                                  "Vlr.a vista", "Vlr.a prazo"};

// The size captions of the half that starts at `first_slot`.
std::array<std::string, kHalfSlots> captions(int first_slot) {
  auto grade = records::grade_load().value_or(std::array<std::string, kSlots>{});
  std::array<std::string, kHalfSlots> half;
  for (int i = 0; i < kHalfSlots; ++i) half[static_cast<size_t>(i)] = grade[static_cast<size_t>(first_slot - 1 + i)];
  return half;
}

std::vector<std::string> heading(const std::array<std::string, kHalfSlots>& sizes) {
  std::vector<std::string> h = kProductHeading;
  for (const std::string& size : sizes) h.push_back(size + "    ");
  h.push_back("     ");
  return h;
}

struct Product {
  std::vector<std::string> cells;  // reference, description, prices
  FlaggedReference flagged;
};

// A line a reference of the group, its size cells empty where the product
// does not open the slot (and slot 45 always, which the second half never
// asks for); `n` counts the references as they are read.
void fill_half(ui::Runtime& rt, ui::Form& f, const SlotRule& rule) {
  ui::Control& group = f["E1"];
  if (group.text().empty()) {
    rt.message("Primeiro selecione o grupo.");
    return rt.set_focus(group);
  }
  rt.wait_pointer(true);
  const std::vector<std::string> columns = heading(captions(rule.first));
  ui::show_rows(f["Grid1"], columns, {});
  f["n"].set_text("0");
  std::vector<Product> products;
  store::Recordset rs = store::Workspace::open_database("\\REFE.Mdb")
                            .open_recordset("SELECT* FROM grupo where e1 = " + store::sql_quote(group.text()));
  for (; !rs.eof(); rs.move_next()) {
    std::string reference = rs["gr"].text();
    products.push_back({{reference, rs["e2"].text(), ui::money_text(rs["e9"]), ui::money_text(rs["e11"])},
                        {reference, size_flags_of(rs)}});
    f["n"].set_text(std::to_string(products.size()));
  }
  std::vector<FlaggedReference> references;
  for (const Product& p : products) references.push_back(p.flagged);
  const auto lines = group_slot_lines(references, rule);
  std::vector<std::vector<std::string>> rows;
  for (size_t r = 0; r < products.size(); ++r) {
    std::vector<std::string> row = products[r].cells;
    row.resize(kGridColumns);
    for (const SlotLine& line : lines[r])
      row[static_cast<size_t>(kProductColumns + line.slot - rule.first)] = quantity_text(line.balance);
    rows.push_back(std::move(row));
  }
  ui::show_rows(f["Grid1"], columns, rows);
  rt.wait_pointer(false);
}

// The grid as it stands, under the captions of the half the button names,
// into TMP12, and the report over it. The two need not match: the lines of
// one half print under the other's captions when the user asks so.
void print_table(ui::Runtime& rt, ui::Form& f, int first_caption_slot, ui::Report& report) {
  const ui::Control& grid = f["Grid1"];
  if (grid.grid.rows <= 1) return (void)rt.message("Faça a busca antes da impressão.");
  const auto sizes = captions(first_caption_slot);
  for (int i = 1; i <= kHalfSlots; ++i) f["S" + std::to_string(i)].set_text(sizes[static_cast<size_t>(i - 1)]);

  std::string columns = "GRUPO";
  for (int i = 1; i <= kHalfSlots; ++i) columns += ", A" + std::to_string(i);
  for (int i = 1; i < kGridColumns; ++i) columns += ", X" + std::to_string(i);
  // Every row repeats the group and the captions.
  std::string heading_values = store::sql_quote(f["E1"].text());
  for (int i = 1; i <= kHalfSlots; ++i) heading_values += ", " + store::sql_quote(f["S" + std::to_string(i)].text());
  store::Database tmp = store::Workspace::open_database("\\TMP12.MDB");
  {
    store::Database::Transaction unit(tmp);
    tmp.execute("DELETE FROM TMP12;");
    for (int r = 1; r < grid.grid.rows; ++r) {
      std::string values = heading_values;
      for (int c = 0; c < kGridColumns - 1; ++c) values += ", " + store::sql_quote(grid.grid.cell(r, c));
      tmp.execute("Insert into TMP12 (" + columns + ") values (" + values + ")");
    }
    unit.commit();
  }
  report.data_files = "\\TMP12.MDB";
  report.report_file_name = "\\TMP12.rpt";
  report.action(1);
}

void load(ui::Runtime& rt, ui::Form& f) {
  rt.centre(f);
  std::vector<std::string> groups;
  store::Recordset rs = store::Workspace::open_database("\\grupo.mdb").open_recordset("select A1 from A1 order by A1");
  for (; !rs.eof(); rs.move_next()) groups.push_back(rs["A1"].text());
  f["E1"].items = groups;
  ui::show_rows(f["Grid1"], kProductHeading, {});
}

}  // namespace

std::unique_ptr<ui::Form> make_grupos(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "GRUPOS", "Estoque por grupo");
  ui::Form& f = *form;
  ui::add_field(f, "E1", ControlKind::ComboBox, "GRUPO");
  auto to_window = std::make_shared<ui::Report>(rt, print::Destination::Window);
  auto to_sheet = std::make_shared<ui::Report>(rt, print::Destination::File);
  to_sheet->spreadsheet = true;
  // Each half's own buttons stand together; the first of each pair of
  // print buttons takes the captions of the first half.
  f.add("Command1", ControlKind::Button, "01 a 25").on_click = [&rt, &f] { fill_half(rt, f, kGroupsFirstHalf); };
  f.add("Command3", ControlKind::Button, "< IMPRIMIR TABELA").on_click = [&rt, &f, to_window] {
    print_table(rt, f, kGroupsFirstHalf.first, *to_window);
  };
  f.add("Command6", ControlKind::Button, "< GERA TABELA EXCEL").on_click = [&rt, &f, to_sheet] {
    print_table(rt, f, kGroupsFirstHalf.first, *to_sheet);
  };
  f.add("Command2", ControlKind::Button, "26 a 50").on_click = [&rt, &f] { fill_half(rt, f, kGroupsSecondHalf); };
  f.add("Command5", ControlKind::Button, "< IMPRIMIR TABELA").on_click = [&rt, &f, to_window] {
    print_table(rt, f, kGroupsSecondHalf.first, *to_window);
  };
  f.add("Command7", ControlKind::Button, "< GERA TABELA EXCEL").on_click = [&rt, &f, to_sheet] {
    print_table(rt, f, kGroupsSecondHalf.first, *to_sheet);
  };
  f.add("Command4", ControlKind::Button, "VOLTA").on_click = [&rt] { rt.close("GRUPOS"); };
  f.add("n", ControlKind::Label);
  f.add("Grid1", ControlKind::Grid);
  // The captions the last print went out with.
  add_hidden_captions(f, "S", kHalfSlots);
  f.on_load = [&rt, &f] { load(rt, f); };
  return form;
}

}  // namespace mz::stock
