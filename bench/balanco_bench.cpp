// The stocktake driven as a clerk drives it: a label scanned (the product
// and the stock of its size), then the count keyed and kept in bala; and an
// overtyped quantity of ACERTOS, from its search to the row written.
#include <benchmark/benchmark.h>

#include <array>
#include <vector>

#include "bench/support.h"
#include "shell/program.h"
#include "store/database.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

struct Session {
  ui::TestHost host;
  ui::Runtime rt{host};
  Session() { shell::program().register_screens(rt); }
};

// The label of reference i, in a slot that changes with it.
std::string label_code(int i) {
  int slot = i % 50 + 1;
  return reference_code(i % kReferences) + (slot < 10 ? "0" : "") + std::to_string(slot);
}

std::string slot_sum(const char* table, int slot) {
  return "SELECT sum(X" + std::to_string(slot) + ") FROM " + table + " WHERE REFERENCIA = ?";
}

void stocktake(const fs::path& folder, Session& s) {
  store::Workspace::open_database("\\bala.MDB").execute("DELETE FROM bala;");
  ui::Form& f = s.rt.show("balanco");
  // A click on the list leaves the code without going to the count.
  double scan = median_us(500, [&](int i) {
    s.rt.set_focus(f["GR"]);
    f["GR"].set_text(label_code(i * 37));
    s.rt.set_focus(f["Grid1"]);
  });
  double scan_and_count = median_us(500, [&](int i) {
    f["GR"].set_text(label_code(i * 37));
    s.rt.set_focus(f["E7"]);
    f["E7"].set_text("3");
    s.rt.set_focus(f["Grid1"]);  // the count is kept, the focus back on GR
  });
  s.rt.close("balanco");
  store::Workspace::open_database("\\bala.MDB").execute("DELETE FROM bala;");

  Raw refe(folder / "refe.db"), entra(folder / "entra.db"), venda(folder / "venda.db"), sai(folder / "sai.db"),
      bala(folder / "bala.db");
  sqlite3_stmt* product = refe.prepare("SELECT * FROM GRUPO WHERE GR = ?");
  // One statement a slot and ledger, prepared once, as a raw program would.
  std::vector<std::array<sqlite3_stmt*, 3>> sums(51);
  for (int slot = 1; slot <= 50; ++slot)
    sums[static_cast<size_t>(slot)] = {entra.prepare(slot_sum("ENTRA", slot)), venda.prepare(slot_sum("VENDA", slot)),
                                       sai.prepare(slot_sum("ENTRA", slot))};
  auto raw_scan = [&](int i) {
    std::string code = label_code(i * 37);
    std::string reference = code.substr(0, 4);
    bind_text(product, 1, reference);
    benchmark::DoNotOptimize(all_cells(product));
    for (sqlite3_stmt* st : sums[static_cast<size_t>(std::stoi(code.substr(4)))]) {
      bind_text(st, 1, reference);
      benchmark::DoNotOptimize(all_cells(st));
    }
  };
  double raw = median_us(500, raw_scan);
  report("balanco: scan a label (product, stock of the size)", scan, raw);

  sqlite3_stmt* insert = bala.prepare("INSERT INTO bala (A1, A2, A3, A4, A5) VALUES ('3', '5', '2', ?, 'M')");
  raw = median_us(500, [&](int i) {
    raw_scan(i);
    bind_text(insert, 1, ">" + label_code(i * 37) + "-PRODUTO");
    sqlite3_step(insert);
    sqlite3_reset(insert);
  });
  bala.exec("DELETE FROM bala");
  report("balanco: scan and count (a row of bala)", scan_and_count, raw);
}

// A supplier's entries of one reference, and one quantity written back as
// it stood, so the ledger stays as built.
void adjustment(const fs::path& folder, Session& s) {
  Raw entra(folder / "entra.db");
  sqlite3_stmt* pick = entra.prepare("SELECT NOME, REFERENCIA FROM ENTRA WHERE rowid = ?");
  auto entry = [&](int i) {
    sqlite3_bind_int(pick, 1, 1 + (i * 7919) % kInflowRows);
    std::vector<std::string> cells = all_cells(pick);
    return cells;
  };
  ui::Form& f = s.rt.show("deve");
  ui::Control& grid = f["DBGrid1"];
  constexpr int kX1 = 6;  // CODIGO, NOME, DATA, TIPO, TOTAL, REFERENCIA, then X1
  double program = median_us(200, [&](int i) {
    std::vector<std::string> e = entry(i);
    f["EE3"].set_text(e[0]);
    f["GR"].set_text(e[1]);
    s.rt.click(f["Command1"]);
    grid.grid.row = 1;
    grid.grid.col = kX1;
    if (grid.on_change) grid.on_change();
  });
  s.rt.close("deve");
  sqlite3_stmt* search = entra.prepare(
      "SELECT rowid, * FROM ENTRA WHERE NOME = ? AND REFERENCIA >= ? AND REFERENCIA < ? || 'z'");
  sqlite3_stmt* write = entra.prepare("UPDATE ENTRA SET X1 = ? WHERE rowid = ?");
  double raw = median_us(200, [&](int i) {
    std::vector<std::string> e = entry(i);
    bind_text(search, 1, e[0]);
    bind_text(search, 2, e[1]);
    bind_text(search, 3, e[1]);
    benchmark::DoNotOptimize(all_cells(search));
    sqlite3_step(search);
    sqlite3_int64 rowid = sqlite3_column_int64(search, 0);
    double x1 = sqlite3_column_double(search, 7);
    sqlite3_reset(search);
    sqlite3_bind_double(write, 1, x1);
    sqlite3_bind_int64(write, 2, rowid);
    sqlite3_step(write);
    sqlite3_reset(write);
  });
  report("deve: search and one overtyped quantity", program, raw);
}

}  // namespace

void run_balanco_benchmarks(const fs::path& folder) {
  Session s;
  stocktake(folder, s);
  adjustment(folder, s);
}

}  // namespace mz::bench
