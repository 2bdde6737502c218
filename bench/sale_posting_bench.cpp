// Recording a sale at shop scale: five lines and three instalments across
// VENDA, VENDA1, Contas and Caixa in one durable unit, beside the same
// reads and inserts made by hand on one SQLite connection with the same
// attached files and the same BEGIN IMMEDIATE.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "bench/support.h"
#include "core/value.h"
#include "sales/venda/posting.h"

namespace mz::bench {

namespace {

sales::SaleOnScreen five_lines_three_instalments() {
  sales::SaleOnScreen s;
  s.c1 = customer_name(7);
  s.c2 = customer_phone(7);
  s.c3 = customer_cpf(7);
  s.ven = "JOANA";
  s.k1 = "24/11/2026";
  s.k4 = "CARNÊ";
  s.k5 = "3";
  s.w1 = s.w3 = "450,00";
  s.w2 = "0,00";
  s.w4 = "150,00";
  s.w5 = "0,00";
  s.w6 = "300,00";
  s.a2 = "P";
  for (int i = 1; i <= 5; ++i) {
    std::string slot = "0" + std::to_string(i);
    s.items.push_back({"1", ">" + reference_code(i * 97) + slot + "-CAMISA POLO", "M", "90,00", "90,00"});
  }
  s.instalments = {{"1", "24/12/2026", "100,00", "CONTAS", "CARNÊ"},
                   {"2", "23/01/2027", "100,00", "CONTAS", "CARNÊ"},
                   {"3", "22/02/2027", "100,00", "CONTAS", "CARNÊ"}};
  return s;
}

std::string next_in_mask(sqlite3_stmt* max, int width) {
  sqlite3_step(max);
  long long highest = sqlite3_column_type(max, 0) == SQLITE_NULL ? 0 : sqlite3_column_int64(max, 0);
  sqlite3_reset(max);
  char buf[24];
  std::snprintf(buf, sizeof buf, "%0*lld", width, highest + 1);
  return buf;
}

bool absent(sqlite3_stmt* probe, const std::string& key) {
  bind_text(probe, 1, key);
  bool none = sqlite3_step(probe) != SQLITE_ROW;
  sqlite3_reset(probe);
  return none;
}

void run(sqlite3_stmt* s) {
  sqlite3_step(s);
  sqlite3_reset(s);
}

// The same sale by hand: the rows the program writes, the same key reads.
class RawSale {
 public:
  explicit RawSale(const fs::path& folder) : raw_(folder / "caixa.db") {
    // Attached in the program's order (by file name), the first one as main.
    for (const char* f : {"contas", "venda", "venda1"})
      raw_.exec(("ATTACH DATABASE '" + (folder / (std::string(f) + ".db")).string() + "' AS " + f).c_str());
    sale_max_ = raw_.prepare("SELECT max(CODIGO) FROM venda.VENDA");
    sale_rows_ = raw_.prepare("SELECT rowid, * FROM venda.VENDA WHERE CODIGO = ?");
    std::string cols = "CODIGO, NOME, DATA, VENDEDOR, PAGAMENTO, VALOR, PARCELA, QTDA, REFERENCIA, V1, V2, V3, V4";
    std::string marks = "?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?";
    for (int n = 1; n <= 50; ++n) {
      cols += ", X" + std::to_string(n);
      marks += ", ?";
    }
    line_ = raw_.prepare("INSERT INTO venda.VENDA (" + cols + ") VALUES (" + marks + ")");
    closing_rows_ = raw_.prepare("SELECT rowid, * FROM venda1.VENDA WHERE CODIGO = ?");
    closing_ = raw_.prepare(
        "INSERT INTO venda1.VENDA (CODIGO, W1, W2, W3, W4, W5, W6, DATA, VENDEDOR, C1, C2, C3, K1, K2, K3, K4, K5) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    account_max_ = raw_.prepare("SELECT max(codigo) FROM contas.Cada");
    account_row_ = raw_.prepare("SELECT rowid, * FROM contas.Cada WHERE CODIGO = ?");
    settled_ = raw_.prepare(
        "INSERT INTO contas.Cada (CODIGO, D1, D2, D3, D4, D5, D6, D7, D8, D9, BX, PG, VP, D10, GRUPO) "
        "VALUES (?, 'Receber', ?, ?, ?, ?, 'Entrada - Venda Balcão', ?, '', ?, 'F', ?, ?, 'Venda', 'Venda')");
    open_ = raw_.prepare(
        "INSERT INTO contas.Cada (CODIGO, D1, D2, D3, D4, D5, D6, D7, D8, D9, D10, GRUPO, NOME, BX) "
        "VALUES (?, 'Receber', ?, ?, ?, ?, ?, ?, '', ?, 'Venda parcelada', 'Venda parcelada', '', 'A')");
    cash_max_ = raw_.prepare("SELECT max(codigo) FROM main.Cada");
    cash_row_ = raw_.prepare("SELECT rowid, * FROM main.Cada WHERE codigo = ?");
    cash_ = raw_.prepare(
        "INSERT INTO main.Cada (codigo, A1, A2, A3, A4, A5, A6, PLANO) VALUES (?, ?, 'Crédito', ?, ?, ?, ?, ?)");
  }

  void post(const sales::SaleOnScreen& s, double today) {
    raw_.exec("BEGIN IMMEDIATE");
    std::string number = next_in_mask(sale_max_, 8);
    if (absent(sale_rows_, number)) {
      for (const auto& line : s.items) {
        bind_text(line_, 1, number);
        bind_text(line_, 2, s.c1);
        sqlite3_bind_double(line_, 3, today);
        bind_text(line_, 4, s.ven);
        bind_text(line_, 5, s.k4);
        sqlite3_bind_double(line_, 6, 450);
        bind_text(line_, 7, s.k5);
        sqlite3_bind_int(line_, 8, 1);
        bind_text(line_, 9, line[1].substr(1, 4));
        for (int c = 1; c <= 4; ++c) bind_text(line_, 9 + c, line[c]);
        int slot = std::stoi(line[1].substr(5, 2));
        for (int n = 1; n <= 50; ++n) sqlite3_bind_int(line_, 13 + n, n == slot ? 1 : 0);
        run(line_);
      }
    }
    if (absent(closing_rows_, number)) {
      for (const auto& line : s.instalments) {
        bind_text(closing_, 1, number);
        const std::string* w[] = {&s.w1, &s.w2, &s.w3, &s.w4, &s.w5, &s.w6};
        for (int k = 0; k < 6; ++k) bind_text(closing_, 2 + k, *w[k]);
        sqlite3_bind_double(closing_, 8, today);
        bind_text(closing_, 9, s.ven);
        bind_text(closing_, 10, s.c1);
        bind_text(closing_, 11, s.c2);
        bind_text(closing_, 12, s.c3);
        for (int k = 0; k < 5; ++k) bind_text(closing_, 13 + k, line[k]);
        run(closing_);
      }
    }
    std::string code = next_in_mask(account_max_, 6);
    if (absent(account_row_, code)) {
      bind_text(settled_, 1, code);
      sqlite3_bind_double(settled_, 2, today);
      sqlite3_bind_double(settled_, 3, today);
      bind_text(settled_, 4, number);
      sqlite3_bind_double(settled_, 5, 150);
      bind_text(settled_, 6, s.k4);
      bind_text(settled_, 7, s.c1);
      sqlite3_bind_double(settled_, 8, today);
      bind_text(settled_, 9, s.a2);
      run(settled_);
    }
    for (size_t i = 0; i < s.instalments.size(); ++i) {
      code = next_in_mask(account_max_, 6);
      if (!absent(account_row_, code)) continue;
      bind_text(open_, 1, code);
      sqlite3_bind_double(open_, 2, today);
      sqlite3_bind_double(open_, 3, today + 30);
      bind_text(open_, 4, number);
      sqlite3_bind_double(open_, 5, 100);
      bind_text(open_, 6, "Venda Balcão Nr: " + number);
      bind_text(open_, 7, s.k4);
      bind_text(open_, 8, s.c1);
      run(open_);
    }
    code = next_in_mask(cash_max_, 7);
    if (absent(cash_row_, code)) {
      bind_text(cash_, 1, code);
      sqlite3_bind_double(cash_, 2, today);
      bind_text(cash_, 3, number);
      bind_text(cash_, 4, s.k4);
      sqlite3_bind_double(cash_, 5, 150);
      bind_text(cash_, 6, s.c1);
      bind_text(cash_, 7, s.ven);
      run(cash_);
    }
    raw_.exec("COMMIT");
  }

 private:
  Raw raw_;
  sqlite3_stmt *sale_max_, *sale_rows_, *line_, *closing_rows_, *closing_;
  sqlite3_stmt *account_max_, *account_row_, *settled_, *open_, *cash_max_, *cash_row_, *cash_;
};

}  // namespace

void run_sale_posting_benchmarks(const fs::path& folder) {
  const Date today = Date::from_ymd(2026, 11, 24);
  const sales::SaleOnScreen sale = five_lines_three_instalments();
  RawSale raw(folder);
  // Taken in turns, so that the disk's moods weigh on both alike.
  std::vector<double> program, baseline;
  auto timed = [](const std::function<void()>& post) {
    auto start = std::chrono::steady_clock::now();
    post();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
  };
  for (int i = 0; i < 220; ++i) {
    double p = timed([&] { sales::post_sale(sale, today); });
    double r = timed([&] { raw.post(sale, today.serial); });
    if (i < 20) continue;  // warm-up: the files into the page cache
    program.push_back(p);
    baseline.push_back(r);
  }
  auto median = [](std::vector<double>& v) {
    std::nth_element(v.begin(), v.begin() + v.size() / 2, v.end());
    return v[v.size() / 2];
  };
  report("recording a sale (5 lines, 3 instalments)", median(program), median(baseline));
}

}  // namespace mz::bench
