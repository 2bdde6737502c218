#pragma once
// What the benchmarks share: the data folder at shop scale, a raw SQLite
// connection for the baselines, and the medians printed side by side.
#include <sqlite3.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace mz::bench {

namespace fs = std::filesystem;

constexpr int kReferences = 10000;
constexpr int kInflowRows = 1000000;
constexpr int kSuppliers = 500;  // each with 2,000 entries on the inflow ledger
constexpr int kSalesRows = 1000000;
constexpr int kOutflowRows = 200000;
constexpr int kCustomers = 50000;
constexpr int kAccounts = 200000;
// The ledgers' documents run over five years: 01/01/2022 to 31/12/2026.
constexpr int kFirstLedgerDay = 44562;
constexpr int kLedgerDays = 5 * 365;

std::string reference_code(int i);
// The party of a movement: a supplier on the inflow, a customer on a sale.
std::string supplier_name(int n);
// The customer of card i: a unique name, phone, CPF and serial number.
std::string customer_name(int i);
std::string customer_phone(int i);
std::string customer_cpf(int i);
// Account i, "000001" to "200000": odd ones open, even ones settled.
std::string account_code(int i);

// A raw connection on one file, with what the files' columns need to be read.
class Raw {
 public:
  explicit Raw(const fs::path& file);
  ~Raw();
  Raw(const Raw&) = delete;
  Raw& operator=(const Raw&) = delete;
  sqlite3_stmt* prepare(const std::string& sql);
  void exec(const char* sql) { sqlite3_exec(db_, sql, nullptr, nullptr, nullptr); }

 private:
  sqlite3* db_ = nullptr;
  std::vector<sqlite3_stmt*> statements_;
};

void bind_text(sqlite3_stmt* s, int i, const std::string& t);
// Every cell of the statement's rows as text, as a screen would take them.
std::vector<std::string> all_cells(sqlite3_stmt* s);

// Builds the shop-scale data once; later runs reuse it.
void build_data(const fs::path& folder);
// The accounts every finance workload reads: issued over 2025 and 2026, due
// 30 days later, to pay or to receive, one per customer in turn.
void build_accounts(const fs::path& folder);
// The median of `iterations` timed runs, after a warm-up.
double median_us(int iterations, const std::function<void(int)>& run);
// One line: the workload, the program's median, the baseline's, their ratio.
void report(const char* workload, double program_us, double raw_us);

void run_store_benchmarks(const fs::path& folder);
void run_records_benchmarks(const fs::path& folder);
void run_consulta_benchmarks(const fs::path& folder);
void run_entrada_benchmarks(const fs::path& folder);
void run_pedido_benchmarks(const fs::path& folder);
void run_label_benchmarks(const fs::path& folder);
void run_cash_benchmarks(const fs::path& folder);
void run_accounts_benchmarks(const fs::path& folder);
void run_settlement_benchmarks(const fs::path& folder);
void run_account_search_benchmarks(const fs::path& folder);
void run_venda_benchmarks(const fs::path& folder);
void run_sale_posting_benchmarks(const fs::path& folder);
void run_balanco_benchmarks(const fs::path& folder);
void run_grupos_benchmarks(const fs::path& folder);
void run_sales_search_benchmarks(const fs::path& folder);
void run_closing_benchmarks(const fs::path& folder);
void run_prod_benchmarks(const fs::path& folder);

}  // namespace mz::bench
