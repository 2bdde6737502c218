// The storage workload: a reference's balance, the whole-reference list,
// the next key, one statement through the dialect, a sale's posting and a
// supplier's report.
#include <benchmark/benchmark.h>

#include <random>
#include <unordered_map>

#include "bench/support.h"
#include "print/report.h"
#include "stock/balance.h"
#include "store/database.h"
#include "store/keys.h"
#include "store/sql_text.h"

namespace mz::bench {

namespace {

std::string slot_sums_sql(const char* table) {
  std::string sql = "SELECT ";
  for (int n = 1; n <= 50; ++n) sql += (n > 1 ? ", sum(X" : "sum(X") + std::to_string(n) + ")";
  return sql + " FROM " + table + " WHERE REFERENCIA = ?";
}

}  // namespace

void run_store_benchmarks(const fs::path& folder) {
  Raw entra(folder / "entra.db"), venda(folder / "venda.db"), sai(folder / "sai.db"), refe(folder / "refe.db");
  Raw venda1(folder / "venda1.db"), contas(folder / "contas.db"), caixa(folder / "caixa.db");
  std::mt19937 rng(7);
  std::uniform_int_distribution<int> any_ref(0, kReferences - 1);
  std::vector<std::string> refs;
  for (int i = 0; i < 400; ++i) refs.push_back(reference_code(any_ref(rng)));

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
      benchmark::DoNotOptimize(all_cells(rows));
    });
    report("one supplier's report over the inflow ledger", program, raw);
  }
}

}  // namespace mz::bench
