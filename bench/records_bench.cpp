// The master-record screens driven through the runtime as a clerk drives
// them: leaving the product code, the browse buttons, opening the customer
// card, and the customer duplicate checks.
#include <benchmark/benchmark.h>

#include "bench/support.h"
#include "shell/program.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

// A screen session: the program's screens with a host that answers No to
// every question, so a duplicate found is reported and the card stays.
struct Session {
  ui::TestHost host;
  ui::Runtime rt{host};
  Session() { shell::program().register_screens(rt); }
  // Leaves `field` holding `text`, as Enter after typing does.
  void leave(ui::Form& f, const char* field, const std::string& text, const char* next) {
    rt.set_focus(f[field]);
    f[field].set_text(text);
    host.answers.push_back({ui::Answer::No, "", false});
    rt.set_focus(f[next]);
    host.answers.clear();
  }
};

void product_benchmarks(Raw& refe) {
  Session s;
  ui::Form& f = s.rt.show("PRODUTO");
  const int middle = kReferences / 2;
  double program = median_us(500, [&](int i) { s.leave(f, "GR", reference_code((i * 37) % kReferences), "E1"); });
  sqlite3_stmt* row = refe.prepare("SELECT * FROM GRUPO WHERE GR = ?");
  double raw = median_us(500, [&](int i) {
    bind_text(row, 1, reference_code((i * 37) % kReferences));
    benchmark::DoNotOptimize(all_cells(row));
  });
  report("leaving GR on a reference", program, raw);

  // Each button from a card in the middle of the catalogue; the baseline is
  // the same two indexed questions, the card on file and its neighbour.
  sqlite3_stmt* next = refe.prepare("SELECT * FROM GRUPO WHERE GR > ? ORDER BY GR LIMIT 1");
  sqlite3_stmt* previous = refe.prepare("SELECT * FROM GRUPO WHERE GR < ? ORDER BY GR DESC LIMIT 1");
  sqlite3_stmt* first = refe.prepare("SELECT * FROM GRUPO ORDER BY GR LIMIT 1");
  sqlite3_stmt* last = refe.prepare("SELECT * FROM GRUPO ORDER BY GR DESC LIMIT 1");
  struct Button {
    const char* name;
    const char* workload;
    sqlite3_stmt* neighbour;
  };
  for (const Button& b : {Button{"Command9", "browse: first reference", first},
                          Button{"Command10", "browse: previous reference", previous},
                          Button{"Command11", "browse: next reference", next},
                          Button{"Command12", "browse: last reference", last}}) {
    double program_us = median_us(500, [&](int) {
      f["GR"].set_text(reference_code(middle));
      s.rt.click(f[b.name]);
    });
    double raw_us = median_us(500, [&](int) {
      bind_text(row, 1, reference_code(middle));
      benchmark::DoNotOptimize(all_cells(row));
      if (sqlite3_bind_parameter_count(b.neighbour)) bind_text(b.neighbour, 1, reference_code(middle));
      benchmark::DoNotOptimize(all_cells(b.neighbour));
    });
    report(b.workload, program_us, raw_us);
  }
  s.rt.close("PRODUTO");
}

void customer_benchmarks(const fs::path& folder) {
  Raw cada(folder / "cada.db"), c3(folder / "c3.db");
  Session s;
  double program = median_us(20, [&](int) {
    s.rt.show("Cadastro");
    s.rt.close("Cadastro");
  });
  sqlite3_stmt* count = cada.prepare("SELECT count(*) FROM CADA");
  sqlite3_stmt* names = cada.prepare("SELECT A1 FROM CADA ORDER BY A1");
  sqlite3_stmt* classes = c3.prepare("SELECT A1 FROM A1 ORDER BY A1");
  double raw = median_us(20, [&](int) {
    for (sqlite3_stmt* st : {count, names, classes}) benchmark::DoNotOptimize(all_cells(st));
  });
  report("opening Cadastro (50,000 customers)", program, raw);

  ui::Form& f = s.rt.show("Cadastro");
  struct Check {
    const char* field;
    const char* column;
    const char* next;  // a field with no check of its own, so only this check is timed
    const char* workload;
    std::string (*value)(int);
  };
  const Check checks[] = {
      {"A24", "A24", "A25", "duplicate check: CPF", customer_cpf},
      {"A4", "A4", "A9", "duplicate check: phone", customer_phone},
      {"A27", "A27", "A30", "duplicate check: serial number", [](int i) { return "SERIE " + std::to_string(i); }},
  };
  for (const Check& c : checks) {
    double program_us = median_us(300, [&](int i) { s.leave(f, c.field, c.value(1 + (i * 131) % kCustomers), c.next); });
    sqlite3_stmt* find = cada.prepare(std::string("SELECT * FROM CADA WHERE ") + c.column + " = ?");
    double raw_us = median_us(300, [&](int i) {
      bind_text(find, 1, c.value(1 + (i * 131) % kCustomers));
      benchmark::DoNotOptimize(all_cells(find));
    });
    report(c.workload, program_us, raw_us);
  }
  // No customer has a CNPJ: the check asks and finds nothing.
  double program_us = median_us(300, [&](int) { s.leave(f, "A23", "11222333/0001-81", "A25"); });
  sqlite3_stmt* find = cada.prepare("SELECT * FROM CADA WHERE A23 = ?");
  double raw_us = median_us(300, [&](int) {
    bind_text(find, 1, "11222333/0001-81");
    benchmark::DoNotOptimize(all_cells(find));
  });
  report("duplicate check: CNPJ", program_us, raw_us);
  s.rt.close("Cadastro");
}

}  // namespace

void run_records_benchmarks(const fs::path& folder) {
  Raw refe(folder / "refe.db");
  product_benchmarks(refe);
  customer_benchmarks(folder);
}

}  // namespace mz::bench
