// The order screen driven as a clerk drives it: recording an order of 20
// lines, whose heading and size captions every row repeats, over its
// earlier version in the goods-out ledger.
#include <benchmark/benchmark.h>

#include "bench/document_lines.h"
#include "bench/support.h"
#include "shell/program.h"
#include "ui/keys.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

constexpr int kLines = 20;
// A number above every exit of the built ledger, replaced on each run and
// removed at the end.
constexpr const char* kNumber = "99999998";

struct Session {
  ui::TestHost host;
  ui::Runtime rt{host};
  Session() { shell::program().register_screens(rt); }
};

void key_order(ui::Form& f, Session& s) {
  f["EE1"].set_text(kNumber);
  f["EE3"].set_text(customer_name(1));
  f["EE4"].set_text("P-1");
  f["EE5"].set_text("REPRESENTANTE");
  for (int n = 1; n <= 24; ++n) f["B" + std::to_string(n)].set_text("ENDERECO " + std::to_string(n));
  key_document_lines(f, s.rt, kLines);
}

// The raw baseline writes the same rows: the ledger's columns, the heading
// and the captions, in one transaction after deleting the old version.
std::string insert_statement() {
  std::string columns = "CODIGO, NOME, DATA, TIPO, TOTAL, NR, TL, DES, EE5, REFERENCIA, QTDA, VALOR";
  std::string values = "?, ?, '2026-11-22', 'P-1', '750,00', '60', '750,00', '0,00', 'REPRESENTANTE', ?, 3, 12.5";
  for (int n = 1; n <= 24; ++n) {
    columns += ", B" + std::to_string(n);
    values += ", 'ENDERECO " + std::to_string(n) + "'";
  }
  for (int n = 1; n <= 50; ++n) {
    columns += ", A" + std::to_string(n) + ", X" + std::to_string(n);
    values += ", 'T" + std::to_string(n) + "', " + (n == 1 ? "2" : n == 3 ? "1" : "0");
  }
  return "INSERT INTO ENTRA (" + columns + ") VALUES (" + values + ")";
}

void recording(const fs::path& folder, ui::Form& f, Session& s) {
  key_order(f, s);
  double program = median_us(200, [&](int) { s.rt.press_key(ui::key::kF1 + 1); });
  double raw = raw_document_rewrite(folder / "sai.db", insert_statement(), kNumber, customer_name(1), kLines);
  report("PEDIDO: recording an order of 20 lines (F2)", program, raw);
}

}  // namespace

void run_pedido_benchmarks(const fs::path& folder) {
  Session s;
  ui::Form& f = s.rt.show("PEDIDO");
  recording(folder, f, s);
  s.rt.close("PEDIDO");
}

}  // namespace mz::bench
