#pragma once
// A recorded movement and its grid as the movement band lays it out, for the
// label tests to drive the generation without the movement screen.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "shell/program.h"
#include "stock/labels.h"
#include "store/database.h"
#include "store/sql_text.h"
#include "support/scratch_folder.h"
#include "ui/form.h"
#include "ui/test_host.h"

namespace mz::stock::testing {

struct Line {
  std::string reference;
  std::map<int, std::string> slots;  // slot -> the cell's text; the others stay empty
  std::string label = "SIM";         // "Etiq."
};

struct LabelFixture {
  mz::testing::ScratchFolder folder;
  ui::TestHost host;
  ui::Runtime rt{host};
  ui::Form band{rt, "ENTRADA", "ESTOQUE  ENTRADA/SAÍDA"};
  ui::Control& grid = band.add("Grid1", ui::ControlKind::Grid);

  LabelFixture() { shell::program().register_screens(rt); }

  static void sql(const char* file, const std::string& statement) {
    store::Workspace::open_database(file).execute(statement);
  }
  static void product(const std::string& reference, const std::string& description, const std::string& cash,
                      const std::string& credit) {
    using store::sql_quote;
    sql("\\REFE.MDB", "Insert into GRUPO (GR, E2, E9, E11) values (" + sql_quote(reference) + ", " +
                          sql_quote(description) + ", " + sql_quote(cash) + ", " + sql_quote(credit) + ")");
  }
  // The document as recording leaves it in the ledger.
  static void record(const char* ledger, const std::string& number) {
    sql(ledger, "Insert into ENTRA (CODIGO, NOME, REFERENCIA) values (" + store::sql_quote(number) + ", 'FORNECEDOR', '0001')");
  }
  // Reference, a column a slot captioned by the size grid, quantity, cost,
  // subtotal and "Etiq.".
  void lay_out(const std::vector<Line>& lines) {
    grid.grid.resize(static_cast<int>(lines.size()) + 1, 55);
    grid.grid.cell(0, 0) = "Referência";
    grid.grid.cell(0, 51) = "Qtda.";
    grid.grid.cell(0, 52) = "Custo";
    grid.grid.cell(0, 53) = "Sub.Total";
    grid.grid.cell(0, 54) = "Etiq.";
    for (size_t i = 0; i < lines.size(); ++i) {
      int r = static_cast<int>(i) + 1;
      grid.grid.cell(r, 0) = lines[i].reference;
      for (const auto& [slot, text] : lines[i].slots) grid.grid.cell(r, slot) = text;
      grid.grid.cell(r, 54) = lines[i].label;
    }
  }
  std::vector<std::string> barra(const std::string& columns) const {
    std::vector<std::string> rows;
    store::Database db = store::Workspace::open_database("\\BARRA.MDB");
    for (store::Recordset rs = db.open_recordset("Select " + columns + " From BARRA order by CONTA"); !rs.eof();
         rs.move_next()) {
      std::string row;
      for (size_t i = 0; i < rs.field_count(); ++i) row += (i ? "|" : "") + rs[i].text();
      rows.push_back(row);
    }
    return rows;
  }
  std::vector<std::string> messages() const {
    std::vector<std::string> texts;
    for (const auto& m : host.messages) texts.push_back(m.text);
    return texts;
  }
};

}  // namespace mz::stock::testing
