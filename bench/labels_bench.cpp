// F4 on an entry of 500 pieces: the reminder, the recorded document, the
// products and the 500 BARRA rows in one unit, beside the same writes on raw
// SQLite.
#include <benchmark/benchmark.h>

#include "bench/support.h"
#include "shell/program.h"
#include "stock/labels.h"
#include "ui/form.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

constexpr int kLines = 20, kSlotsALine = 5, kPiecesASlot = 5;  // 500 pieces
constexpr const char* kEntry = "00000001";                     // an entry the inflow ledger holds

std::string line_reference(int line) { return reference_code((line * 487) % kReferences); }

void lay_out(ui::Control& grid) {
  grid.grid.resize(kLines + 1, 55);
  for (int line = 0; line < kLines; ++line) {
    grid.grid.cell(line + 1, 0) = line_reference(line);
    for (int s = 1; s <= kSlotsALine; ++s) grid.grid.cell(line + 1, s * 7) = std::to_string(kPiecesASlot);
    grid.grid.cell(line + 1, 54) = "SIM";
  }
}

}  // namespace

void run_label_benchmarks(const fs::path& folder) {
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);
  ui::Form band{rt, "ENTRADA", "ESTOQUE  ENTRADA/SAÍDA"};
  ui::Control& grid = band.add("Grid1", ui::ControlKind::Grid);
  lay_out(grid);
  double program = median_us(50, [&](int) {
    stock::generate_labels(rt, "\\ENTRA.MDB", kEntry, grid);
    rt.close("ETI");
  });

  Raw entra(folder / "entra.db"), refe(folder / "refe.db"), barra(folder / "barra.db");
  sqlite3_stmt* entry = entra.prepare("SELECT * FROM ENTRA WHERE CODIGO = ? LIMIT 1");
  sqlite3_stmt* product = refe.prepare("SELECT E11, E2 FROM GRUPO WHERE GR = ?");
  sqlite3_stmt* insert = barra.prepare("INSERT INTO BARRA (CONTA, CODIGO, TIPO, VALOR, NOME) VALUES (?, ?, ?, ?, ?)");
  double raw = median_us(50, [&](int) {
    bind_text(entry, 1, kEntry);
    benchmark::DoNotOptimize(all_cells(entry));
    barra.exec("BEGIN IMMEDIATE");
    barra.exec("DELETE FROM BARRA");
    int conta = 1;
    for (int line = 0; line < kLines; ++line) {
      std::string reference = line_reference(line);
      bind_text(product, 1, reference);
      std::vector<std::string> cells = all_cells(product);
      for (int s = 1; s <= kSlotsALine; ++s) {
        std::string slot = (s * 7 < 10 ? "0" : "") + std::to_string(s * 7);
        for (int piece = 0; piece < kPiecesASlot; ++piece) {
          sqlite3_bind_int(insert, 1, conta++);
          bind_text(insert, 2, "*" + reference + slot + "*");
          bind_text(insert, 3, reference + "." + slot + ".");
          bind_text(insert, 4, cells.size() > 0 ? cells[0] : "");
          bind_text(insert, 5, cells.size() > 1 ? cells[1] : "");
          sqlite3_step(insert);
          sqlite3_reset(insert);
        }
      }
    }
    barra.exec("COMMIT");
  });
  report("labels of an entry of 500 pieces (F4)", program, raw);
}

}  // namespace mz::bench
