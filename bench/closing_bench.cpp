// The day closing and the account reports at shop scale: "VER" over a month
// of 1,000,000 sold lines, the closing ticket of one day, and a year of open
// accounts copied into Rela3 and rendered to PDF, each beside the same
// questions asked of SQLite directly.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "bench/support.h"
#include "core/value.h"
#include "finance/reports/account_report.h"
#include "print/render.h"
#include "shell/program.h"
#include "ui/runtime.h"
#include "ui/test_host.h"

namespace mz::bench {

namespace {

constexpr const char* kForms[] = {"CARTÃO DE CRÉDITO", "CARTÃO DE DÉBITO", "CHEQUE", "CREDIÁRIO", "DINHEIRO", "PIX"};
constexpr int kSellers = 8;

std::string seller_name(int n) { return "VENDEDOR " + std::to_string(n + 1); }

// The shared sales carry no seller or payment form: each sale gets one of
// the shop's forms and sellers, all its lines alike, and the sellers a card.
void give_sales_their_sellers(const fs::path& folder) {
  const fs::path marker = folder / "bench-closing-1";
  if (fs::exists(marker)) return;
  std::printf("Preparando vendedores e formas de pagamento em %s ...\n", folder.c_str());
  Raw venda(folder / "venda.db");
  venda.exec("BEGIN");
  sqlite3_stmt* update = venda.prepare(
      "UPDATE VENDA SET PAGAMENTO = ?, VENDEDOR = ? WHERE CODIGO = ?");
  for (int sale = 1; sale <= kSalesRows / 3 + 1; ++sale) {
    char code[16];
    std::snprintf(code, sizeof code, "%08d", sale);
    bind_text(update, 1, kForms[sale % 6]);
    bind_text(update, 2, seller_name(sale % kSellers));
    bind_text(update, 3, code);
    sqlite3_step(update);
    sqlite3_reset(update);
  }
  venda.exec("COMMIT");
  Raw sala(folder / "sala.db");
  sala.exec("DELETE FROM SALA");
  sqlite3_stmt* insert = sala.prepare("INSERT INTO SALA (X1, X2, X9) VALUES (?, ?, '3')");
  for (int n = 0; n < kSellers; ++n) {
    bind_text(insert, 1, reference_code(n + 1));
    bind_text(insert, 2, seller_name(n));
    sqlite3_step(insert);
    sqlite3_reset(insert);
  }
  std::fclose(std::fopen(marker.c_str(), "w"));
}

double ver(ui::Runtime& rt, ui::Form& f) {
  return median_us(20, [&](int) {
    f["K1"].set_text("01/11/2026");
    f["K2"].set_text("30/11/2026");
    rt.click(f["Command1"]);
  });
}

double raw_ver(const fs::path& folder) {
  Raw venda(folder / "venda.db");
  sqlite3_stmt* sales = venda.prepare(
      "SELECT PAGAMENTO, VENDEDOR, VALOR FROM VENDA WHERE DATA BETWEEN ? AND ? "
      "GROUP BY DATA, VALOR, CODIGO, NOME, VENDEDOR, PAGAMENTO");
  return median_us(20, [&](int) {
    sqlite3_bind_double(sales, 1, Date::from_ymd(2026, 11, 1).serial);
    sqlite3_bind_double(sales, 2, Date::from_ymd(2026, 11, 30).serial);
    benchmark::DoNotOptimize(all_cells(sales));
  });
}

double raw_ticket(const fs::path& folder) {
  Raw contas(folder / "contas.db");
  Raw venda(folder / "venda.db");
  sqlite3_stmt* settled = contas.prepare(
      "SELECT D4, D5 FROM Cada WHERE BX = 'F' AND D1 = ? AND D3 = ? ORDER BY CODIGO");
  sqlite3_stmt* by_type = contas.prepare("SELECT D7, SUM(D5) FROM Cada WHERE D2 BETWEEN ? AND ? GROUP BY D7");
  sqlite3_stmt* by_remark = contas.prepare("SELECT D8, SUM(D5) FROM Cada WHERE D2 BETWEEN ? AND ? GROUP BY D8");
  sqlite3_stmt* sales = venda.prepare(
      "SELECT PAGAMENTO, VENDEDOR, VALOR FROM VENDA WHERE DATA BETWEEN ? AND ? "
      "GROUP BY DATA, VALOR, CODIGO, NOME, VENDEDOR, PAGAMENTO");
  const double day = Date::from_ymd(2026, 11, 20).serial;
  return median_us(50, [&](int) {
    for (const char* operation : {"Receber", "Pagar"}) {
      bind_text(settled, 1, operation);
      sqlite3_bind_double(settled, 2, day);
      benchmark::DoNotOptimize(all_cells(settled));
    }
    for (sqlite3_stmt* s : {by_type, by_remark, sales}) {
      sqlite3_bind_double(s, 1, day);
      sqlite3_bind_double(s, 2, day);
      benchmark::DoNotOptimize(all_cells(s));
    }
  });
}

double raw_copy(const fs::path& folder) {
  Raw rela(folder / "rela3.db");
  rela.exec(("ATTACH '" + (folder / "contas.db").string() + "' AS c").c_str());
  sqlite3_stmt* clear = rela.prepare("DELETE FROM Rela3");
  sqlite3_stmt* copy = rela.prepare(
      "INSERT INTO Rela3 (D2, D3, D4, D5, D6, D7, D8, D9, D10, EMPRESA, RELA, DI, DF) SELECT D2, D3, D4, D5, D6, D7, "
      "D8, D9, D10, NOME, 'RELATÓRIO', '01/01/2026', '31/12/2026' FROM c.Cada WHERE BX = 'A' AND D1 = 'Receber' AND "
      "D3 BETWEEN ? AND ? ORDER BY D3, CODIGO");
  return median_us(5, [&](int) {
    rela.exec("BEGIN");
    sqlite3_step(clear);
    sqlite3_reset(clear);
    sqlite3_bind_double(copy, 1, Date::from_ymd(2026, 1, 1).serial);
    sqlite3_bind_double(copy, 2, Date::from_ymd(2026, 12, 31).serial);
    sqlite3_step(copy);
    sqlite3_reset(copy);
    rela.exec("COMMIT");
  });
}

}  // namespace

void run_closing_benchmarks(const fs::path& folder) {
  build_data(folder);
  build_accounts(folder);
  give_sales_their_sellers(folder);
  ui::TestHost host;
  ui::Runtime rt{host};
  shell::program().register_screens(rt);

  ui::Form& contas = rt.show("Contas");
  report("VER: a month of sales by form and seller", ver(rt, contas), raw_ver(folder));

  contas["D2"].set_text("20/11/2026");
  contas["D3"].set_text("20/11/2026");
  double ticket = median_us(50, [&](int) {
    host.answers.push_back({ui::Answer::Yes, "", false});
    rt.click(contas["Mo"]);
    host.port_jobs.clear();
  });
  report("Closing ticket of one day (raw port)", ticket, raw_ticket(folder));
  rt.close("Contas");

  const finance::reports::Variant& receivable = *finance::reports::find_variant("RELATÓRIO DE CONTAS A RECEBER", "T1");
  double copy = median_us(5, [&](int) { finance::reports::fill_rela3(receivable, {"01/01/2026", "31/12/2026"}, nullptr); });
  double raw_copied = raw_copy(folder);
  report("A year of open accounts into Rela3", copy, raw_copied);

  ui::Form& period = rt.show("IMPECON2");
  period["TT"].set_text("RELATÓRIO DE CONTAS A RECEBER");
  const std::string pdf = (fs::temp_directory_path() / "mostruz-closing-bench.pdf").string();
  double year = median_us(5, [&](int) {
    period["A2"].set_text("01/01/2026");
    period["A3"].set_text("31/12/2026");
    host.answers.push_back({ui::Answer::Yes, "", false});
    rt.click(period["SSCommand7"]);
    print::write_pdf(host.reports.back().document, pdf);
    host.reports.clear();
    host.messages.clear();
  });
  report("The same, the report laid out and in PDF", year, raw_copied);
  fs::remove(pdf);
  rt.close("IMPECON2");
}

}  // namespace mz::bench
