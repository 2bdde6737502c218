// The command line as a shop's scripts and the screen tests use it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>

#include "support/pdf_reader.h"
#include "support/scratch_folder.h"

namespace mz {
namespace {

struct Result {
  int status;
  std::string out;
};

std::string quoted(const std::string& s) {
  std::string q = "'";
  for (char c : s) q += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return q + "'";
}

// `input` is what the user types at a question.
Result mostruz(const std::vector<std::string>& args, const std::string& input = "") {
  std::string cmd = "printf %s " + quoted(input) + " | " + quoted(MOSTRUZ_EXE);
  for (const auto& a : args) cmd += " " + quoted(a);
  FILE* pipe = popen((cmd + " 2>&1").c_str(), "r");
  std::string out;
  char buf[4096];
  size_t n;
  while ((n = fread(buf, 1, sizeof buf, pipe)) > 0) out.append(buf, n);
  int status = pclose(pipe);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, out};
}

TEST(Cli, InitSetsUpOnceAndSqlPrintsRegionalRows) {
  testing::TempFolder folder;
  std::string dir = folder.path().string();
  Result first = mostruz({"init", dir});
  EXPECT_EQ(first.status, 0);
  EXPECT_NE(first.out.find("49 arquivos criados"), std::string::npos) << first.out;
  EXPECT_NE(mostruz({"init", dir}).out.find("0 arquivos criados, 0 tabelas criadas, 0 colunas"), std::string::npos);

  struct Case {
    std::vector<std::string> args;
    int status;
    std::string out;  // exact, or the start of an error
  };
  const std::vector<Case> cases = {
      {{"sql", "CADA.MDB", "Insert into CADA (CODIGO, A1, A2) values ('0001', 'D''ÁVILA', 'RUA A')", "--pasta", dir}, 0, ""},
      {{"--pasta", dir, "sql", "cada.mdb", "Insert into CADA (CODIGO, A1) values ('0002', 'ANA')"}, 0, ""},
      {{"sql", "CADA.MDB", "SELECT CODIGO, A1, A2 FROM CADA ORDER BY A1", "--pasta", dir}, 0,
       "0002\tANA\t\n0001\tD'ÁVILA\tRUA A\n"},
      {{"sql", "CADA.MDB", "SELECT* FROM CADA where CODIGO = '9999'", "--pasta", dir}, 0, ""},
      {{"sql", "ENTRA.MDB", "Insert into ENTRA (CODIGO, DATA, REFERENCIA, X1, VALOR) values ('00000001', #11/22/2026#, '0001', 2, '1.234,5')",
        "--pasta", dir}, 0, ""},
      {{"sql", "ENTRA.MDB", "SELECT DATA, X1, VALOR, X2 FROM ENTRA", "--pasta", dir}, 0, "22/11/2026\t2\t1234,5\t\n"},
      {{"sql", "CDSE.Mdb", "SELECT CODIGO, A1 FROM CDSEN", "--pasta", dir}, 0, "1\tMOSTRUZ\n"},
      {{"sql", "CADA.MDB", "SELECT* FROM NADA", "--pasta", dir}, 1, "Erro 3078"},
      {{"sql", "NADA.MDB", "SELECT* FROM NADA", "--pasta", dir}, 1, "Erro 3024"},
      {{"sql", "CADA.MDB", "SELECT* FROM CADA where A1 = 'D'ÁVILA'", "--pasta", dir}, 1, "Erro "},
      {{"sql", "CADA.MDB"}, 2, "uso:"},
  };
  for (const auto& c : cases) {
    std::string trace;
    for (const auto& a : c.args) trace += a + " ";
    SCOPED_TRACE(trace);
    Result r = mostruz(c.args);
    EXPECT_EQ(r.status, c.status) << r.out;
    if (c.status == 0) EXPECT_EQ(r.out, c.out);
    else EXPECT_EQ(r.out.rfind(c.out, 0), 0u) << r.out;
  }
}

TEST(Cli, ReportRendersATemplateOverItsOwnDataFile) {
  testing::TempFolder folder;
  const std::string dir = folder.path().string();
  ASSERT_EQ(mostruz({"init", dir}).status, 0);
  std::ofstream(folder.path() / "LISTA.rpt") << "report list\ndata reci.MDB\ntable RECI\ntitle \"Recibos\"\n"
                                                "column \"Pagador\" 60 \"{R2}\"\n";
  for (const char* payer : {"ANA", "JOSÉ D'ÁVILA"})
    ASSERT_EQ(mostruz({"sql", "RECI.MDB", std::string("Insert into RECI (CODIGO, R2) values ('1', \"") + payer + "\")",
                       "--pasta", dir}).status, 0);
  const std::string pdf = (folder.path() / "saida.pdf").string();
  Result r = mostruz({"report", "lista.RPT", "--pdf", pdf, "--formula", "{RECI.R2} = 'ANA'", "--pasta", dir});
  ASSERT_EQ(r.status, 0) << r.out;
  if (!testing::have_program("pdftotext")) GTEST_SKIP() << "pdftotext is not installed";
  std::string text = testing::pdf_text(pdf);
  EXPECT_NE(text.find("Recibos"), std::string::npos) << text;
  EXPECT_NE(text.find("ANA"), std::string::npos) << text;
  EXPECT_EQ(text.find("ÁVILA"), std::string::npos) << "the formula keeps the other row out";

  const std::string xlsx = (folder.path() / "saida.xlsx").string();
  EXPECT_EQ(mostruz({"report", "LISTA.rpt", "--xlsx", xlsx, "--pasta", dir}).status, 0);
  EXPECT_TRUE(std::filesystem::exists(xlsx));
  EXPECT_EQ(mostruz({"report", "NENHUM.rpt", "--pdf", pdf, "--pasta", dir}).out.rfind("Erro 20504", 0), 0u);
  EXPECT_EQ(mostruz({"report", "LISTA.rpt", "--pasta", dir}).status, 2) << "an output is required";
}

// The day's backup folder name, as the machine's clock gives it.
std::string todays_backup() {
  std::time_t t = std::time(nullptr);
  std::tm local{};
  localtime_r(&t, &local);
  char name[32];
  std::strftime(name, sizeof name, "Backup %d.%m.%Y", &local);
  return name;
}

TEST(Cli, BackupRestoreAndRepairForAScheduledTask) {
  testing::TempFolder folder;
  const std::string dir = folder.path().string();
  ASSERT_EQ(mostruz({"init", dir}).status, 0);
  ASSERT_EQ(mostruz({"sql", "CADA.MDB", "Insert into CADA (CODIGO, A1) values ('0001', 'D''ÁVILA')", "--pasta", dir})
                .status, 0);
  const std::string name = todays_backup();
  Result backup = mostruz({"backup", "--pasta", dir});
  EXPECT_EQ(backup.status, 0);
  EXPECT_NE(backup.out.find(" arquivos copiados para "), std::string::npos) << backup.out;
  EXPECT_NE(backup.out.find(name + "\n"), std::string::npos) << backup.out;
  EXPECT_TRUE(std::filesystem::exists(folder.path() / name / "cada.db"));

  ASSERT_EQ(mostruz({"sql", "CADA.MDB", "Delete from CADA", "--pasta", dir}).status, 0);
  const std::string count = "SELECT count(*) FROM CADA";
  struct Case {
    std::vector<std::string> args;
    std::string input;
    int status;
    std::string out;    // a part of what is printed
    std::string after;  // the customers' count afterwards
  };
  const std::vector<Case> cases = {
      {{"restore", "Backup 01.01.2001", "--pasta", dir}, "s\n", 1, "Backup não encontrado", "0"},
      {{"restore", name, "--pasta", dir}, "n\n", 1, "Nada foi alterado.", "0"},
      {{"restore", name, "--pasta", dir}, "", 1, "Nada foi alterado.", "0"},
      {{"restore", name, "--pasta", dir}, "s\n", 0, "Backup restaurado.", "1"},
      {{"repair", "--pasta", dir}, "", 0, "cada.db: reparado\n", "1"},
      {{"restore", "--pasta", dir}, "", 2, "uso:", "1"},
      {{"backup", "extra", "--pasta", dir}, "", 2, "uso:", "1"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.args[0] + " " + c.input);
    Result r = mostruz(c.args, c.input);
    EXPECT_EQ(r.status, c.status) << r.out;
    EXPECT_NE(r.out.find(c.out), std::string::npos) << r.out;
    EXPECT_EQ(mostruz({"sql", "CADA.MDB", count, "--pasta", dir}).out, c.after + "\n");
  }
  // The data the restore replaced were saved first, and the customer is whole.
  EXPECT_EQ(mostruz({"sql", "CADA.MDB", "SELECT A1 FROM CADA", "--pasta", dir}).out, "D'ÁVILA\n");
  int safety_copies = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
    safety_copies += entry.path().filename().string().find("antes da restauração") != std::string::npos;
  EXPECT_EQ(safety_copies, 1);
}

}  // namespace
}  // namespace mz
