// VENDA driven at the counter at shop scale: a scan landing its line, the
// customer left with his debt summed, and the screen's load with 50,000
// customers, each beside the same questions asked of SQLite by hand.
#include <benchmark/benchmark.h>

#include "bench/support.h"
#include "shell/program.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

constexpr int kScans = 300;

}  // namespace

void run_venda_benchmarks(const fs::path& folder) {
  build_accounts(folder);
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);

  // Opening the screen: its lists and the size names.
  double program = median_us(20, [&](int) {
    rt.show("VENDA");
    rt.close("VENDA");
  });
  Raw cada(folder / "cada.db"), sala(folder / "sala.db"), forms(folder / "a1.db"), grade(folder / "grade.db");
  sqlite3_stmt* names = cada.prepare("SELECT A1 FROM CADA ORDER BY A1");
  sqlite3_stmt* sellers = sala.prepare("SELECT X2 FROM SALA ORDER BY X2");
  sqlite3_stmt* payment = forms.prepare("SELECT A1 FROM A1 ORDER BY A1");
  sqlite3_stmt* sizes = grade.prepare("SELECT * FROM GRADE");
  double raw = median_us(20, [&](int) {
    for (sqlite3_stmt* s : {names, sellers, payment, sizes}) benchmark::DoNotOptimize(all_cells(s));
  });
  report("VENDA: load (50,000 customers)", program, raw);

  // A scan: six digits and Enter, the product read and its line added.
  ui::Form& f = rt.show("VENDA");
  program = median_us(kScans, [&](int i) {
    rt.set_focus(f["GR"]);
    f["GR"].set_text(reference_code((i * 37) % kReferences) + "03");
    rt.type_char('\r');
  });
  Raw refe(folder / "refe.db");
  sqlite3_stmt* product = refe.prepare("SELECT E2, E4, E9, E11 FROM GRUPO WHERE GR = ?");
  raw = median_us(kScans, [&](int i) {
    bind_text(product, 1, reference_code((i * 37) % kReferences));
    benchmark::DoNotOptimize(all_cells(product));
  });
  report("VENDA: scan to its line", program, raw);

  // Leaving the customer: the card, then the open receivables summed.
  rt.click(f["Command10"]);
  program = median_us(300, [&](int i) {
    rt.set_focus(f["c1"]);
    f["c1"].set_text(customer_name(1 + (i * 97) % kCustomers));
    rt.set_focus(f["c2"]);
  });
  Raw contas(folder / "contas.db");
  sqlite3_stmt* card = cada.prepare("SELECT a4, a23, a24, D16 FROM CADA WHERE A1 = ?");
  sqlite3_stmt* debt = contas.prepare("SELECT sum(D5) FROM CADA WHERE D9 = ? AND BX = 'A' AND D1 = 'Receber'");
  raw = median_us(300, [&](int i) {
    const std::string name = customer_name(1 + (i * 97) % kCustomers);
    bind_text(card, 1, name);
    benchmark::DoNotOptimize(all_cells(card));
    bind_text(debt, 1, name);
    benchmark::DoNotOptimize(all_cells(debt));
  });
  report("VENDA: leaving c1 with the debt (200,000 accounts)", program, raw);
  rt.close("VENDA");
}

}  // namespace mz::bench
