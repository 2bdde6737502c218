// The backup copies a consistent moment of every file, also while another
// station writes, and a restore puts the data back as they were.
#include "maintenance/backup.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <thread>

#include "core/error.h"
#include "maintenance/files.h"
#include "maintenance/sqlite_file.h"
#include "maintenance/support.h"
#include "store/database.h"
#include "support/scratch_folder.h"

namespace mz::maintenance {
namespace {

namespace fs = std::filesystem;
using store::Workspace;

constexpr int kBatch = 40;

// A station that records batches of kBatch rows, one transaction each, with
// no pause, into two files.
void write_forever(const fs::path& folder) {
  SqliteFile customers(folder / "cada.db", SQLITE_OPEN_READWRITE);
  SqliteFile cash(folder / "caixa.db", SQLITE_OPEN_READWRITE);
  for (int batch = 1;; ++batch) {
    for (SqliteFile* file : {&customers, &cash}) {
      const char* table = file == &customers ? "CADA" : "Cada";
      file->run("BEGIN IMMEDIATE");
      for (int i = 0; i < kBatch; ++i)
        file->run(std::string("INSERT INTO ") + table + " (CODIGO, A2) VALUES ('" + std::to_string(i) + "', '" +
                  std::to_string(batch) + "')");
      file->run("COMMIT");
    }
  }
}

std::string text_of(const fs::path& file) {
  std::ifstream in(file);
  return {std::istreambuf_iterator<char>(in), {}};
}

TEST(MaintenanceBackup, CopiesWholeFilesWhileAnotherProcessWrites) {
  testing::ScratchFolder folder;
  Workspace::close_all();
  size_t databases = database_files(folder.path()).size(), templates = report_templates(folder.path()).size();
  pid_t writer = testing::fork_worker([&] { write_forever(folder.path()); });
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  for (int round = 0; round < 3; ++round) {
    // The second and third rounds replace the first's folder, as on the same day.
    int count = make_backup(folder.path(), "Backup 22.11.2026");
    EXPECT_EQ(count, static_cast<int>(databases + templates));
  }
  ASSERT_TRUE(testing::stop_worker(writer)) << "the writer stopped by itself";

  fs::path copy = folder.path() / "Backup 22.11.2026";
  EXPECT_EQ(database_files(copy).size(), databases);
  EXPECT_EQ(report_templates(copy).size(), templates);
  for (const std::string& name : database_files(copy)) {
    SqliteFile file(copy / name, SQLITE_OPEN_READONLY);
    EXPECT_TRUE(file.intact()) << name;
  }
  for (const char* name : {"cada.db", "caixa.db"}) {
    SqliteFile file(copy / name, SQLITE_OPEN_READONLY);
    const char* table = std::string(name) == "cada.db" ? "CADA" : "Cada";
    // Every batch is in the copy whole, or not at all.
    std::vector<std::string> torn = file.column(std::string("SELECT A2 FROM ") + table +
                                                " GROUP BY A2 HAVING count(*) <> " + std::to_string(kBatch));
    EXPECT_TRUE(torn.empty()) << name << " holds part of batch " << torn.front();
    EXPECT_GT(std::stoi(file.column(std::string("SELECT count(*) FROM ") + table)[0]), 0) << name;
  }
  EXPECT_EQ(text_of(copy / "RECI.rpt"), text_of(folder.path() / "RECI.rpt"));
}

TEST(MaintenanceBackup, RestorePutsTheDataBackAsTheyWere) {
  testing::ScratchFolder folder;
  auto customers = [] { return Workspace::open_database("\\CADA.MDB"); };
  customers().execute("Insert into CADA (CODIGO, A1) values ('0001', 'D''ÁVILA')");
  Workspace::open_database("\\TELEFONE.MDB").execute("Insert into TELEFONE (ID, A1) values ('000001', 'ANA')");
  make_backup(folder.path(), "Backup 21.11.2026");
  auto before = testing::folder_state(folder.path());

  // Changes after the backup, read back through the cached connections.
  customers().execute("Update CADA set A1 = 'OUTRO' where CODIGO = '0001'");
  customers().execute("Insert into CADA (CODIGO, A1) values ('0002', 'MARIA')");
  Workspace::open_database("\\TELEFONE.MDB").execute("Delete from TELEFONE");
  std::ofstream(folder.path() / "RECI.rpt", std::ios::app) << "# ajuste da loja\n";
  std::string changed_template = text_of(folder.path() / "RECI.rpt");
  EXPECT_EQ(customers().open_recordset("Select count(*) from CADA")[0].text(), "2");

  std::string safety = safety_backup_name(folder.path(), Date::from_ymd_hms(2026, 11, 22, 9, 5, 7));
  EXPECT_EQ(safety, "Backup 22.11.2026 09.05.07 antes da restauração");
  restore_backup(folder.path(), "Backup 21.11.2026", safety);

  EXPECT_EQ(testing::folder_state(folder.path()), before);
  store::Recordset rs = customers().open_recordset("SELECT CODIGO, A1 FROM CADA");
  ASSERT_FALSE(rs.eof());
  EXPECT_EQ(rs["A1"].text(), "D'ÁVILA");
  rs.move_next();
  EXPECT_TRUE(rs.eof());
  EXPECT_EQ(Workspace::open_database("\\TELEFONE.MDB").open_recordset("Select A1 from TELEFONE")[0].text(), "ANA");
  EXPECT_EQ(text_of(folder.path() / "RECI.rpt"), text_of(folder.path() / "Backup 21.11.2026" / "RECI.rpt"));

  // The data replaced are kept in a backup of their own.
  SqliteFile kept(folder.path() / safety / "cada.db", SQLITE_OPEN_READONLY);
  EXPECT_EQ(kept.column("SELECT A1 FROM CADA ORDER BY CODIGO"), (std::vector<std::string>{"OUTRO", "MARIA"}));
  EXPECT_EQ(text_of(folder.path() / safety / "RECI.rpt"), changed_template);
  // A second restore in the same second keeps the first safety copy.
  EXPECT_EQ(safety_backup_name(folder.path(), Date::from_ymd_hms(2026, 11, 22, 9, 5, 7)), safety + " (2)");
}

// The files a restore is for: one damaged in the middle, one that is no
// database at all, one with a stale journal beside it.
TEST(MaintenanceBackup, RestoreMendsFilesThatNoLongerRead) {
  testing::ScratchFolder folder;
  Workspace::open_database("\\CADA.MDB").execute("Insert into CADA (CODIGO, A1) values ('0001', 'MARIA')");
  Workspace::open_database("\\TELEFONE.MDB").execute("Insert into TELEFONE (ID, A1) values ('000001', 'ANA')");
  make_backup(folder.path(), "Backup 21.11.2026");
  auto before = testing::folder_state(folder.path());
  Workspace::close_all();
  std::ofstream(folder.file("cada.db"), std::ios::binary | std::ios::trunc) << "não é um banco de dados";
  std::ofstream(folder.file("telefone.db-journal"), std::ios::binary) << std::string(1024, '\x11');
  {
    std::fstream out(folder.file("caixa.db"), std::ios::in | std::ios::out | std::ios::binary);
    out << std::string(100, '\xA5');  // the header
  }
  EXPECT_NE(testing::folder_state(folder.path()), before);

  restore_backup(folder.path(), "Backup 21.11.2026", "salvos");
  EXPECT_EQ(testing::folder_state(folder.path()), before);
  EXPECT_FALSE(fs::exists(folder.file("telefone.db-journal")));
  EXPECT_EQ(Workspace::open_database("\\CADA.MDB").open_recordset("Select A1 from CADA")[0].text(), "MARIA");
  // What was there is kept as it was, readable or not.
  EXPECT_EQ(text_of(folder.path() / "salvos" / "cada.db"), "não é um banco de dados");
  EXPECT_EQ(database_files(folder.path() / "salvos").size(), before.size());
}

TEST(MaintenanceBackup, NamesAndOrderOfTheBackupFolders) {
  testing::TempFolder folder;
  EXPECT_EQ(backup_name(Date::from_ymd(2026, 3, 5)), "Backup 05.03.2026");
  for (const char* name : {"Backup 05.03.2026", "Backup 28.02.2027", "Backup 31.12.2025",
                           "Backup 05.03.2026 10.00.00 antes da restauração", "Fotos"})
    fs::create_directory(folder.path() / name);
  std::ofstream(folder.path() / "Backup 01.01.2030") << "a file, not a backup";
  EXPECT_EQ(backups(folder.path()),
            (std::vector<std::string>{"Backup 28.02.2027", "Backup 05.03.2026 10.00.00 antes da restauração",
                                      "Backup 05.03.2026", "Backup 31.12.2025"}));
  try {
    restore_backup(folder.path(), "Backup 01.01.2001", "x");
    ADD_FAILURE() << "a missing backup was restored";
  } catch (const Error& e) {
    EXPECT_EQ(e.number(), 76);
  }
  EXPECT_FALSE(fs::exists(folder.path() / "x")) << "nothing is saved when there is nothing to restore";
}

}  // namespace
}  // namespace mz::maintenance
