// The shop-scale data folder and the timing shared by every benchmark.
#include "bench/support.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>

#include "store/data_folder.h"
#include "store/sql_functions.h"

namespace mz::bench {

std::string reference_code(int i) {
  char buf[8];
  std::snprintf(buf, sizeof buf, "%04d", i);
  return buf;
}

std::string supplier_name(int n) { return "FORNECEDOR " + std::to_string(n); }

std::string customer_name(int i) { return "CLIENTE " + std::to_string(i) + (i % 7 == 0 ? " D'ÁVILA" : " SILVA"); }

std::string customer_phone(int i) {
  char buf[24];
  std::snprintf(buf, sizeof buf, "(11) 9%04d-%04d", i / 10000, i % 10000);
  return buf;
}

// Nine digits from the card's number, then the two check digits.
std::string customer_cpf(int i) {
  char base[16];
  std::snprintf(base, sizeof base, "%09d", 100000000 + i * 7);
  std::string cpf = base;
  for (int length : {9, 10}) {
    int sum = 0;
    for (int k = 0; k < length; ++k) sum += (cpf[static_cast<size_t>(k)] - '0') * (length + 1 - k);
    int r = sum % 11;
    cpf += static_cast<char>('0' + (r < 2 ? 0 : 11 - r));
  }
  return cpf;
}

std::string account_code(int i) {
  char buf[16];
  std::snprintf(buf, sizeof buf, "%06d", i);
  return buf;
}

Raw::Raw(const fs::path& file) {
  if (sqlite3_open_v2(file.c_str(), &db_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
    std::fprintf(stderr, "cannot open %s\n", file.c_str());
    std::exit(1);
  }
  store::register_sql_functions(db_);
}

Raw::~Raw() {
  for (auto* s : statements_) sqlite3_finalize(s);
  sqlite3_close(db_);
}

sqlite3_stmt* Raw::prepare(const std::string& sql) {
  sqlite3_stmt* s = nullptr;
  if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &s, nullptr) != SQLITE_OK) {
    std::fprintf(stderr, "%s: %s\n", sql.c_str(), sqlite3_errmsg(db_));
    std::exit(1);
  }
  statements_.push_back(s);
  return s;
}

void bind_text(sqlite3_stmt* s, int i, const std::string& t) {
  sqlite3_bind_text(s, i, t.data(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
}

std::vector<std::string> all_cells(sqlite3_stmt* s) {
  std::vector<std::string> cells;
  while (sqlite3_step(s) == SQLITE_ROW)
    for (int c = 0; c < sqlite3_column_count(s); ++c) {
      const unsigned char* text = sqlite3_column_text(s, c);
      cells.emplace_back(text ? reinterpret_cast<const char*>(text) : "");
    }
  sqlite3_reset(s);
  return cells;
}

namespace {


void fill_ledger(const fs::path& file, const char* table, int rows, std::mt19937& rng) {
  Raw raw(file);
  std::string sql = std::string("INSERT INTO ") + table + " (CODIGO, DATA, REFERENCIA, QTDA, VALOR, NOME";
  for (int n = 1; n <= 50; ++n) sql += ", X" + std::to_string(n);
  sql += ") VALUES (?, ?, ?, ?, ?, ?";
  for (int n = 1; n <= 50; ++n) sql += ", ?";
  sql += ")";
  raw.exec("BEGIN");
  sqlite3_stmt* insert = raw.prepare(sql);
  std::uniform_int_distribution<int> ref(0, kReferences - 1), slot(1, 50), qty(1, 5), cents(100, 99999);
  // A document of three lines shares its number, date and party; documents
  // are numbered in date order over five years, as a shop records them.
  const int documents = (rows + 2) / 3;
  for (int r = 0; r < rows; ++r) {
    const int document = r / 3;
    char code[16];
    std::snprintf(code, sizeof code, "%08d", document + 1);
    bind_text(insert, 1, code);
    const int day = static_cast<int>(static_cast<long long>(document) * kLedgerDays / documents);
    sqlite3_bind_double(insert, 2, kFirstLedgerDay + day);
    bind_text(insert, 3, reference_code(ref(rng)));
    int q = qty(rng), s = slot(rng);
    sqlite3_bind_int(insert, 4, q);
    sqlite3_bind_double(insert, 5, cents(rng) / 100.0);
    bind_text(insert, 6, supplier_name(document % kSuppliers));
    for (int n = 1; n <= 50; ++n) sqlite3_bind_int(insert, 6 + n, n == s ? q : 0);
    sqlite3_step(insert);
    sqlite3_reset(insert);
  }
  raw.exec("COMMIT");
}


void fill_customers(const fs::path& folder) {
  Raw raw(folder / "cada.db");
  raw.exec("BEGIN");
  raw.exec("DELETE FROM CADA");
  sqlite3_stmt* insert = raw.prepare(
      "INSERT INTO CADA (CODIGO, A1, A3, A4, A9, A12, A13, A24, A26, A27, A31, D16) "
      "VALUES (?, ?, '10/03/2024', ?, 'RUA DAS FLORES, 10', 'SÃO PAULO', 'SP', ?, 'CLIENTE', ?, '0,00', 'NÃO')");
  for (int i = 1; i <= kCustomers; ++i) {
    bind_text(insert, 1, reference_code(i));
    bind_text(insert, 2, customer_name(i));
    bind_text(insert, 3, customer_phone(i));
    bind_text(insert, 4, customer_cpf(i));
    bind_text(insert, 5, "SERIE " + std::to_string(i));
    sqlite3_step(insert);
    sqlite3_reset(insert);
  }
  raw.exec("COMMIT");
  // The program never analyzes a file: the customers are measured with the
  // planner a shop has, which trusts each index (the CNPJ index holds one
  // empty value for almost every card, and statistics would say to scan).
  raw.exec("DELETE FROM sqlite_stat1 WHERE tbl = 'CADA'");
}

}  // namespace

void build_accounts(const fs::path& folder) {
  const fs::path marker = folder / "bench-accounts-2";
  if (fs::exists(marker)) return;
  std::printf("Preparando as contas de medição em %s ...\n", folder.c_str());
  Raw raw(folder / "contas.db");
  raw.exec("BEGIN");
  raw.exec("DELETE FROM Cada");
  sqlite3_stmt* insert = raw.prepare(
      "INSERT INTO Cada (CODIGO, D1, D2, D3, D4, D5, D6, D7, D8, D9, D10, NOME, GRUPO, BX) "
      "VALUES (?, ?, ?, ?, ?, ?, 'VENDA', 'DINHEIRO', '', ?, '', '', '', ?)");
  std::mt19937 rng(63);
  std::uniform_int_distribution<int> day(0, 729), cents(100, 500000), coin(0, 1);
  const double first_day = 45658;  // 01/01/2025
  for (int i = 1; i <= kAccounts; ++i) {
    double issued = first_day + day(rng);
    bind_text(insert, 1, account_code(i));
    bind_text(insert, 2, coin(rng) ? "Receber" : "Pagar");
    sqlite3_bind_double(insert, 3, issued);
    sqlite3_bind_double(insert, 4, issued + 30);
    bind_text(insert, 5, std::to_string(i));
    sqlite3_bind_double(insert, 6, cents(rng) / 100.0);
    bind_text(insert, 7, customer_name(1 + i % kCustomers));
    bind_text(insert, 8, i % 2 ? "A" : "F");
    sqlite3_step(insert);
    sqlite3_reset(insert);
  }
  // No ANALYZE: a shop's file has no statistics either.
  raw.exec("COMMIT");
  std::fclose(std::fopen(marker.c_str(), "w"));
}

void build_data(const fs::path& folder) {
  if (!fs::exists(folder / "bench-customers-2") && fs::exists(folder / "bench-ready-3")) {
    std::printf("Preparando os clientes de medição em %s ...\n", folder.c_str());
    store::setup_data_folder(folder);  // the customers' indexes
    fill_customers(folder);
    std::fclose(std::fopen((folder / "bench-customers-2").c_str(), "w"));
  }
  if (fs::exists(folder / "bench-ready-3")) return;
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
  fill_customers(folder);
  std::fclose(std::fopen((folder / "bench-customers-2").c_str(), "w"));
  std::fclose(std::fopen((folder / "bench-ready-3").c_str(), "w"));
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


}  // namespace mz::bench
