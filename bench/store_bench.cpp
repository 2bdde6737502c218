// The storage workload at shop scale, the program's path beside a hand-written
// raw SQLite baseline on the same files: medians and their ratio.
//
//   mostruz_bench [DATA_FOLDER]   (built on first use, then reused)
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <random>
#include <unordered_map>
#include <string>
#include <vector>

#include "core/format.h"
#include "stock/balance.h"
#include "print/report.h"
#include "store/data_folder.h"
#include "store/database.h"
#include "store/keys.h"
#include "store/sql_functions.h"
#include "store/sql_text.h"

namespace fs = std::filesystem;
using namespace mz;

namespace {

constexpr int kReferences = 10000;
constexpr int kInflowRows = 1000000;
constexpr int kSuppliers = 500;  // each with 2,000 entries on the inflow ledger
constexpr int kSalesRows = 1000000;
constexpr int kOutflowRows = 200000;

std::string reference_code(int i) {
  char buf[8];
  std::snprintf(buf, sizeof buf, "%04d", i);
  return buf;
}

// A raw connection on one file, with what the files' columns need to be read.
class Raw {
 public:
  explicit Raw(const fs::path& file) {
    if (sqlite3_open_v2(file.c_str(), &db_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
      std::fprintf(stderr, "cannot open %s\n", file.c_str());
      std::exit(1);
    }
    store::register_sql_functions(db_);
  }
  ~Raw() {
    for (auto* s : statements_) sqlite3_finalize(s);
    sqlite3_close(db_);
  }
  sqlite3_stmt* prepare(const std::string& sql) {
    sqlite3_stmt* s = nullptr;
    if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &s, nullptr) != SQLITE_OK) {
      std::fprintf(stderr, "%s: %s\n", sql.c_str(), sqlite3_errmsg(db_));
      std::exit(1);
    }
    statements_.push_back(s);
    return s;
  }
  void exec(const char* sql) { sqlite3_exec(db_, sql, nullptr, nullptr, nullptr); }

 private:
  sqlite3* db_ = nullptr;
  std::vector<sqlite3_stmt*> statements_;
};

void bind_text(sqlite3_stmt* s, int i, const std::string& t) {
  sqlite3_bind_text(s, i, t.data(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
}

// The party of a movement: a supplier on the inflow, a customer on a sale.
std::string supplier_name(int n) { return "FORNECEDOR " + std::to_string(n); }

void fill_ledger(const fs::path& file, const char* table, int rows, std::mt19937& rng) {
  Raw raw(file);
  std::string sql = std::string("INSERT INTO ") + table + " (CODIGO, DATA, REFERENCIA, QTDA, VALOR, NOME";
  for (int n = 1; n <= 50; ++n) sql += ", X" + std::to_string(n);
  sql += ") VALUES (?, ?, ?, ?, ?, ?";
  for (int n = 1; n <= 50; ++n) sql += ", ?";
  sql += ")";
  raw.exec("BEGIN");
  sqlite3_stmt* insert = raw.prepare(sql);
  std::uniform_int_distribution<int> ref(0, kReferences - 1), slot(1, 50), qty(1, 5), day(0, 3 * 365), cents(100, 99999);
  for (int r = 0; r < rows; ++r) {
    char code[16];
    std::snprintf(code, sizeof code, "%08d", r / 3 + 1);
    bind_text(insert, 1, code);
    sqlite3_bind_double(insert, 2, 45292 + day(rng));  // days from 2024 on
    bind_text(insert, 3, reference_code(ref(rng)));
    int q = qty(rng), s = slot(rng);
    sqlite3_bind_int(insert, 4, q);
    sqlite3_bind_double(insert, 5, cents(rng) / 100.0);
    bind_text(insert, 6, supplier_name(r % kSuppliers));
    for (int n = 1; n <= 50; ++n) sqlite3_bind_int(insert, 6 + n, n == s ? q : 0);
    sqlite3_step(insert);
    sqlite3_reset(insert);
  }
  raw.exec("COMMIT");
}

void build_data(const fs::path& folder) {
  if (fs::exists(folder / "bench-ready-2")) return;
  std::printf("Preparando os dados de medição em %s ...\n", folder.c_str());
  fs::remove_all(folder);
  store::setup_data_folder(folder);
  std::mt19937 rng(42);
  {
    Raw raw(folder / "refe.db");
    raw.exec("BEGIN");
    std::string sql = "INSERT INTO GRUPO (GR, E1, E2, E9, E11";
    for (int n = 1; n <= 50; ++n) sql += ", A" + std::to_string(n);
    sql += ") VALUES (?, 'CAMISAS', ?, '59,90', '69,90'";
    for (int n = 1; n <= 50; ++n) sql += n <= 12 ? ", 'SIM'" : ", 'NÃO'";
    sql += ")";
    sqlite3_stmt* insert = raw.prepare(sql);
    for (int r = 0; r < kReferences; ++r) {
      bind_text(insert, 1, reference_code(r));
      bind_text(insert, 2, "PRODUTO " + reference_code(r));
      sqlite3_step(insert);
      sqlite3_reset(insert);
    }
    raw.exec("COMMIT");
  }
  fill_ledger(folder / "entra.db", "ENTRA", kInflowRows, rng);
  fill_ledger(folder / "venda.db", "VENDA", kSalesRows, rng);
  fill_ledger(folder / "sai.db", "ENTRA", kOutflowRows, rng);
  for (const char* f : {"refe.db", "entra.db", "venda.db", "sai.db"}) Raw(folder / f).exec("ANALYZE");
  std::FILE* ready = std::fopen((folder / "bench-ready-2").c_str(), "w");
  std::fclose(ready);
}

double median_us(int iterations, const std::function<void(int)>& run) {
  std::vector<double> times;
  for (int i = 0; i <= iterations / 10; ++i) run(i);  // warm-up: the files into the page cache
  for (int i = 1; i <= iterations; ++i) {
    auto start = std::chrono::steady_clock::now();
    run(i);
    times.push_back(std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count());
  }
  std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
  return times[times.size() / 2];
}

void report(const char* workload, double program_us, double raw_us) {
  auto shown = [](double us) {
    char buf[32];
    if (us >= 100000) std::snprintf(buf, sizeof buf, "%.3f s", us / 1e6);
    else if (us >= 1000) std::snprintf(buf, sizeof buf, "%.2f ms", us / 1000);
    else std::snprintf(buf, sizeof buf, "%.1f us", us);
    return std::string(buf);
  };
  std::printf("%-46s %12s %12s %8.2fx\n", workload, shown(program_us).c_str(), shown(raw_us).c_str(),
              program_us / raw_us);
}

std::string slot_sums_sql(const char* table) {
  std::string sql = "SELECT ";
  for (int n = 1; n <= 50; ++n) sql += (n > 1 ? ", sum(X" : "sum(X") + std::to_string(n) + ")";
  return sql + " FROM " + table + " WHERE REFERENCIA = ?";
}

}  // namespace

int main(int argc, char** argv) {
  fs::path folder = argc > 1 ? fs::path(argv[1]) : fs::path("build/bench-data");
  build_data(folder);
  store::Workspace::set_folder(folder);
  Raw entra(folder / "entra.db"), venda(folder / "venda.db"), sai(folder / "sai.db"), refe(folder / "refe.db");
  Raw venda1(folder / "venda1.db"), contas(folder / "contas.db"), caixa(folder / "caixa.db");
  std::mt19937 rng(7);
  std::uniform_int_distribution<int> any_ref(0, kReferences - 1);
  std::vector<std::string> refs;
  for (int i = 0; i < 400; ++i) refs.push_back(reference_code(any_ref(rng)));

  std::printf("%-46s %12s %12s %9s\n", "workload (medians)", "programa", "SQLite puro", "razão");

  // 1. The 50-slot display of one reference.
  {
    sqlite3_stmt* sums[3] = {entra.prepare(slot_sums_sql("ENTRA")), venda.prepare(slot_sums_sql("VENDA")),
                             sai.prepare(slot_sums_sql("ENTRA"))};
    double program = median_us(300, [&](int i) { benchmark::DoNotOptimize(stock::slot_balances(refs[i % refs.size()])); });
    double raw = median_us(300, [&](int i) {
      double balance[50] = {};
      for (int l = 0; l < 3; ++l) {
        bind_text(sums[l], 1, refs[i % refs.size()]);
        sqlite3_step(sums[l]);
        for (int n = 0; n < 50; ++n) balance[n] += (l == 0 ? 1 : -1) * sqlite3_column_double(sums[l], n);
        sqlite3_reset(sums[l]);
      }
      benchmark::DoNotOptimize(balance);
    });
    report("50-slot balance of one reference", program, raw);
  }

  // 2. The whole-reference stock list of all references, in order of GR.
  {
    double program = median_us(5, [&](int) {
      auto balances = stock::all_reference_balances();
      std::vector<std::pair<std::string, double>> lines;
      store::Recordset rs = store::Workspace::open_database("REFE.MDB").open_recordset("SELECT GR FROM GRUPO order by GR");
      for (; !rs.eof(); rs.move_next()) {
        std::string gr = rs[0].text();
        auto it = balances.find(gr);
        lines.emplace_back(gr, it == balances.end() ? 0 : it->second);
      }
      benchmark::DoNotOptimize(lines);
    });
    sqlite3_stmt* grouped[3] = {entra.prepare("SELECT REFERENCIA, sum(QTDA) FROM ENTRA GROUP BY REFERENCIA"),
                                venda.prepare("SELECT REFERENCIA, sum(QTDA) FROM VENDA GROUP BY REFERENCIA"),
                                sai.prepare("SELECT REFERENCIA, sum(QTDA) FROM ENTRA GROUP BY REFERENCIA")};
    sqlite3_stmt* references = refe.prepare("SELECT GR FROM GRUPO ORDER BY GR");
    double raw = median_us(5, [&](int) {
      std::unordered_map<std::string, double> balance;
      for (int l = 0; l < 3; ++l) {
        while (sqlite3_step(grouped[l]) == SQLITE_ROW)
          balance[reinterpret_cast<const char*>(sqlite3_column_text(grouped[l], 0))] +=
              (l == 0 ? 1 : -1) * sqlite3_column_double(grouped[l], 1);
        sqlite3_reset(grouped[l]);
      }
      std::vector<std::pair<std::string, double>> lines;
      while (sqlite3_step(references) == SQLITE_ROW) {
        std::string gr = reinterpret_cast<const char*>(sqlite3_column_text(references, 0));
        lines.emplace_back(gr, balance[gr]);
      }
      sqlite3_reset(references);
      benchmark::DoNotOptimize(lines);
    });
    report("whole-reference list of all references", program, raw);
  }

  // 3. The next key of a sale.
  {
    double program = median_us(3000, [&](int) {
      store::Database db = store::Workspace::open_database("VENDA.MDB");
      benchmark::DoNotOptimize(store::next_key(db, store::keys::kSale));
    });
    sqlite3_stmt* max = venda.prepare("SELECT max(CODIGO) FROM VENDA");
    double raw = median_us(3000, [&](int) {
      sqlite3_step(max);
      char key[16];
      std::snprintf(key, sizeof key, "%08.0f", sqlite3_column_double(max, 0) + 1.0);
      sqlite3_reset(max);
      benchmark::DoNotOptimize(key);
    });
    report("next key of a sale", program, raw);
  }

  // 4. One statement through the dialect against the same prepared statement.
  {
    double program = median_us(1000, [&](int i) {
      store::Recordset rs = store::Workspace::open_database("ENTRA.MDB")
                                .open_recordset("select sum(X1)from ENTRA where REFERENCIA = " +
                                                store::sql_quote(refs[i % refs.size()]));
      benchmark::DoNotOptimize(rs[0].value());
    });
    sqlite3_stmt* sum = entra.prepare("select sum(X1) from ENTRA where REFERENCIA = ?");
    double raw = median_us(1000, [&](int i) {
      bind_text(sum, 1, refs[i % refs.size()]);
      sqlite3_step(sum);
      benchmark::DoNotOptimize(sqlite3_column_double(sum, 0));
      sqlite3_reset(sum);
    });
    report("one slot sum through the dialect", program, raw);
  }

  // 5. Posting one sale of two lines across its four files.
  {
    int sale = 90000000;
    double program = median_us(20, [&](int) {
      std::string code = std::to_string(++sale);
      store::Recordset lines = store::Workspace::open_database("VENDA.MDB")
                                   .open_recordset("SELECT* FROM VENDA where CODIGO = " + store::sql_quote(code));
      for (int line = 0; line < 2; ++line) {
        lines.add_new();
        lines["CODIGO"] = code;
        lines["DATA"] = "22/11/2026";
        lines["REFERENCIA"] = "0042";
        lines["QTDA"] = "1";
        lines["VALOR"] = "139,80";
        lines["X3"] = "1";
        lines.update();
      }
      store::Recordset closing = store::Workspace::open_database("Venda1.Mdb")
                                     .open_recordset("SELECT* FROM VENDA where CODIGO = " + store::sql_quote(code));
      closing.add_new();
      closing["CODIGO"] = code;
      closing["W3"] = "139,80";
      closing.update();
      store::Workspace::open_database("Contas.Mdb")
          .execute("Insert into Cada (CODIGO, D1, BX, D5) values (" + store::sql_quote(code) + ", 'Receber', 'F', '139,80')");
      store::Workspace::open_database("Caixa.Mdb")
          .execute("Insert into Cada (codigo, A2, A5) values (" + store::sql_quote(code) + ", 'Crédito', '139,80')");
    });
    sqlite3_stmt* line = venda.prepare("INSERT INTO VENDA (CODIGO, DATA, REFERENCIA, QTDA, VALOR, X3) VALUES (?, 46348, '0042', 1, 139.8, 1)");
    sqlite3_stmt* closing = venda1.prepare("INSERT INTO VENDA (CODIGO, W3) VALUES (?, '139,80')");
    sqlite3_stmt* account = contas.prepare("INSERT INTO Cada (CODIGO, D1, BX, D5) VALUES (?, 'Receber', 'F', 139.8)");
    sqlite3_stmt* cash = caixa.prepare("INSERT INTO Cada (codigo, A2, A5) VALUES (?, 'Crédito', 139.8)");
    double raw = median_us(20, [&](int) {
      std::string code = std::to_string(++sale);
      for (sqlite3_stmt* s : {line, line, closing, account, cash}) {
        bind_text(s, 1, code);
        sqlite3_step(s);
        sqlite3_reset(s);
      }
    });
    report("posting one sale across four files", program, raw);
  }
  // 6. The summary report of one supplier's entries, over the inflow ledger.
  {
    const std::string supplier = supplier_name(123);
    double program = median_us(5, [&](int) {
      print::ReportRequest request{"\\entra.mdb", "{entra.nome} = '" + supplier + "'", "\\entra.rpt",
                                   print::Destination::Window, std::nullopt};
      benchmark::DoNotOptimize(print::run_report(request, Date::from_ymd(2026, 11, 23)));
    });
    sqlite3_stmt* rows = entra.prepare("SELECT * FROM ENTRA WHERE NOME = ?");
    double raw = median_us(5, [&](int) {
      bind_text(rows, 1, supplier);
      std::vector<std::string> cells;
      while (sqlite3_step(rows) == SQLITE_ROW)
        for (int c = 0; c < sqlite3_column_count(rows); ++c) {
          const unsigned char* text = sqlite3_column_text(rows, c);
          cells.emplace_back(text ? reinterpret_cast<const char*>(text) : "");
        }
      sqlite3_reset(rows);
      benchmark::DoNotOptimize(cells);
    });
    report("one supplier's report over the inflow ledger", program, raw);
  }
  return 0;
}
