// Recording a movement over an existing number is one unit: a process killed
// at any moment leaves the document whole, as it was or as it was recorded.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "stock/entrada/band.h"
#include "stock/entrada/document.h"
#include "store/database.h"
#include "support/scratch_folder.h"
#include "ui/form.h"
#include "ui/test_host.h"

namespace mz::stock {
namespace {

constexpr const char* kNumber = "00000001";
constexpr int kRounds = 20, kMaxRounds = 80;

// One version of the document: `lines` lines of `pieces` pieces in slot 1
// and slot 50, all under one supplier's name.
struct Version {
  std::string name;
  int lines;
  int pieces;
};
const Version kOld{"ANTIGO", 7, 3};
const Version kNew{"NOVO", 20, 5};

void lay_out(ui::Control& grid, const Version& v) {
  ui::GridCells& g = grid.grid;
  g.text.clear();
  g.rows = 0;
  g.cols = 0;
  g.resize(v.lines + 1, band::kColumns);
  for (int r = 1; r <= v.lines; ++r) {
    g.cell(r, band::kReferenceColumn) = std::to_string(1000 + r);
    g.cell(r, 1) = std::to_string(v.pieces);
    g.cell(r, 50) = std::to_string(v.pieces);
    g.cell(r, band::kQuantityColumn) = std::to_string(2 * v.pieces);
    g.cell(r, band::kCostColumn) = "10,00";
    g.cell(r, band::kLabelColumn) = "SIM";
  }
}

void record(ui::Control& grid, const Version& v) {
  lay_out(grid, v);
  document::record(document::kEntry, {kNumber, v.name, "22/11/2026", "NF", "1,00"}, grid);
}

// The document as the ledger holds it: which version, or a failure that says
// what was found.
::testing::AssertionResult whole(const char* when) {
  store::Database db = store::Workspace::open_database("\\ENTRA.MDB");
  store::Recordset rs = db.open_recordset(
      "select NOME, count(*), min(X1), max(X1), min(X50), max(X50), min(QTDA), max(QTDA) from ENTRA where CODIGO = '" +
      std::string(kNumber) + "' group by NOME");
  if (rs.eof()) return ::testing::AssertionFailure() << when << ": the document is gone";
  std::string found = rs[0].text() + " " + rs[1].text() + " rows";
  for (int i = 2; i < 8; ++i) found += " " + rs[i].text();
  for (const Version& v : {kOld, kNew}) {
    std::string p = std::to_string(v.pieces), q = std::to_string(2 * v.pieces);
    std::string expected = v.name + " " + std::to_string(v.lines) + " rows " + p + " " + p + " " + p + " " + p + " " +
                           q + " " + q;
    if (found == expected) {
      rs.move_next();
      if (rs.eof()) return ::testing::AssertionSuccess();
      found += "; and rows of " + rs[0].text();
    }
  }
  return ::testing::AssertionFailure() << when << ": half a document: " << found;
}

TEST(EntradaRecording, AKilledRecordingLeavesTheDocumentWhole) {
  mz::testing::ScratchFolder folder;
  ui::TestHost host;
  ui::Runtime rt{host};
  ui::Form form{rt, "ENTRADA", "ESTOQUE  ENTRADA/SAÍDA"};
  ui::Control& grid = form.add("Grid1", ui::ControlKind::Grid);
  record(grid, kOld);
  store::Workspace::open_database("\\ENTRA.MDB")
      .execute("Insert into ENTRA (CODIGO, NOME, REFERENCIA, X1, QTDA) values ('00000002', 'OUTRO', '0001', 1, 1)");
  ASSERT_TRUE(whole("before"));

  // The kills fall anywhere within the first three recordings, however fast
  // this disk; while they find only the old version the span widens, since a
  // busy disk can slow the recordings down after they were timed.
  auto started = std::chrono::steady_clock::now();
  record(grid, kNew);
  record(grid, kOld);
  std::chrono::duration<double, std::micro> two = std::chrono::steady_clock::now() - started;
  double span_us = 1.5 * two.count() + 100;
  std::mt19937 random(20261122);
  int found[2] = {0, 0};  // old, new
  for (int round = 0; round < kMaxRounds && (round < kRounds || !found[0] || !found[1]); ++round) {
    store::Workspace::close_all();  // the child opens its own connections
    pid_t child = fork();
    ASSERT_NE(child, -1);
    if (child == 0) {
      // Replaces the document back and forth until it is killed; a failure
      // ends the child, never the test run it was forked from.
      try {
        for (bool fresh = true;; fresh = !fresh) record(grid, fresh ? kNew : kOld);
      } catch (...) {
        _exit(1);
      }
    }
    std::uniform_real_distribution<double> moment_us(0, span_us);
    std::this_thread::sleep_for(std::chrono::microseconds(static_cast<long>(moment_us(random))));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    std::string when = "round " + std::to_string(round);
    ASSERT_TRUE(whole(when.c_str()));
    store::Database db = store::Workspace::open_database("\\ENTRA.MDB");
    bool replaced = db.open_recordset("select NOME from ENTRA where CODIGO = '00000001'")["NOME"].text() == kNew.name;
    ++found[replaced];
    if (!replaced) span_us *= 1.1;
    EXPECT_FALSE(db.open_recordset("select CODIGO from ENTRA where CODIGO = '00000002'").eof()) << when;
  }
  // The kills fell at different moments: some after a recording of the new
  // version, some not.
  EXPECT_GT(found[0], 0);
  EXPECT_GT(found[1], 0);
}

}  // namespace
}  // namespace mz::stock
