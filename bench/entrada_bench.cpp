// The stock movement screen driven as a clerk drives it: leaving a reference
// (the product and the stock of its first slot) and recording a document of
// 20 lines over its earlier version.
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
// A number above every document of the built ledger, replaced on each run
// and removed at the end.
constexpr const char* kNumber = "99999999";

struct Session {
  ui::TestHost host;
  ui::Runtime rt{host};
  Session() { shell::program().register_screens(rt); }
};

std::string slot_sums(const char* table) {
  std::string sql = "SELECT ";
  for (int n = 1; n <= 50; ++n) sql += (n > 1 ? ", sum(X" : "sum(X") + std::to_string(n) + ")";
  return sql + " FROM " + table + " WHERE REFERENCIA = ?";
}

void leaving_reference(const fs::path& folder, ui::Form& f, Session& s) {
  double program = median_us(500, [&](int i) {
    s.rt.set_focus(f["GR"]);
    f["GR"].set_text(reference_code((i * 37) % kReferences));
    s.rt.set_focus(f["E2"]);
  });
  Raw refe(folder / "refe.db"), entra(folder / "entra.db"), venda(folder / "venda.db"), sai(folder / "sai.db");
  sqlite3_stmt* row = refe.prepare("SELECT * FROM GRUPO WHERE GR = ?");
  sqlite3_stmt* in = entra.prepare(slot_sums("ENTRA"));
  sqlite3_stmt* sold = venda.prepare(slot_sums("VENDA"));
  sqlite3_stmt* out = sai.prepare(slot_sums("ENTRA"));
  double raw = median_us(500, [&](int i) {
    std::string code = reference_code((i * 37) % kReferences);
    for (sqlite3_stmt* st : {row, in, sold, out}) {
      bind_text(st, 1, code);
      benchmark::DoNotOptimize(all_cells(st));
    }
  });
  report("ENTRADA: leaving GR (product and EST. ATUAL)", program, raw);
}

void recording(const fs::path& folder, ui::Form& f, Session& s) {
  f["EE1"].set_text(kNumber);
  f["EE3"].set_text(supplier_name(1));
  key_document_lines(f, s.rt, kLines);
  double program = median_us(200, [&](int) { s.rt.press_key(ui::key::kF1 + 1); });

  std::string insert = "INSERT INTO ENTRA (CODIGO, NOME, DATA, TIPO, TOTAL, REFERENCIA";
  for (int n = 1; n <= 50; ++n) insert += ", X" + std::to_string(n);
  insert += ", QTDA, VALOR, ET) VALUES (?, ?, '2026-11-22', '', '250,00', ?";
  for (int n = 1; n <= 50; ++n) insert += n == 1 ? ", 2" : n == 3 ? ", 1" : ", 0";
  insert += ", 3, 12.5, 'SIM')";
  double raw = raw_document_rewrite(folder / "entra.db", insert, kNumber, supplier_name(1), kLines);
  report("ENTRADA: recording a movement of 20 lines (F2)", program, raw);
}

}  // namespace

void key_document_lines(ui::Form& f, ui::Runtime& rt, int lines) {
  for (int line = 0; line < lines; ++line) {
    rt.set_focus(f["GR"]);
    f["GR"].set_text(reference_code(line * 97));
    rt.set_focus(f["E2"]);
    f["X1"].set_text("2");
    f["X3"].set_text("1");
    f["E7"].set_text("12,50");
    rt.press_key(ui::key::kF1);
  }
}

double raw_document_rewrite(const fs::path& file, const std::string& insert, const std::string& number,
                            const std::string& name, int lines) {
  Raw db(file);
  sqlite3_stmt* remove = db.prepare("DELETE FROM ENTRA WHERE CODIGO = ?");
  sqlite3_stmt* add = db.prepare(insert);
  sqlite3_stmt* begin = db.prepare("BEGIN IMMEDIATE");
  sqlite3_stmt* commit = db.prepare("COMMIT");
  auto step = [](sqlite3_stmt* st) {
    sqlite3_step(st);
    sqlite3_reset(st);
  };
  auto rewrite = [&](int count) {
    step(begin);
    bind_text(remove, 1, number);
    step(remove);
    for (int line = 0; line < count; ++line) {
      bind_text(add, 1, number);
      bind_text(add, 2, name);
      bind_text(add, 3, reference_code(line * 97));
      step(add);
    }
    step(commit);
  };
  double raw = median_us(200, [&](int) { rewrite(lines); });
  rewrite(0);
  return raw;
}

void run_entrada_benchmarks(const fs::path& folder) {
  Session s;
  ui::Form& f = s.rt.show("ENTRADA");
  leaving_reference(folder, f, s);
  recording(folder, f, s);
  s.rt.close("ENTRADA");
}

}  // namespace mz::bench
