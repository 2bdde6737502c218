// Repair and compaction never lose a row: not when interrupted at any point,
// not when a file is damaged, not when a scratch file was left behind.
#include "maintenance/repair.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <random>
#include <thread>

#include "maintenance/files.h"
#include "maintenance/sqlite_file.h"
#include "maintenance/support.h"
#include "store/database.h"
#include "support/scratch_folder.h"

namespace mz::maintenance {
namespace {

namespace fs = std::filesystem;
using store::Workspace;

// Enough rows, and freed pages, for a compaction to take a while.
void fill(const fs::path& folder) {
  SqliteFile customers(folder / "cada.db", SQLITE_OPEN_READWRITE);
  customers.run("BEGIN");
  for (int i = 0; i < 3000; ++i)
    customers.run("INSERT INTO CADA (CODIGO, A1, A36) VALUES ('" + std::to_string(i) + "', 'CLIENTE " +
                  std::to_string(i) + "', '" + std::string(200, 'x') + "')");
  customers.run("DELETE FROM CADA WHERE CODIGO LIKE '%5'");
  customers.run("COMMIT");
}

TEST(MaintenanceRepair, KilledAtAnyPointLeavesEveryFileWithAllItsRows) {
  testing::ScratchFolder folder;
  fill(folder.path());
  Workspace::close_all();
  const auto before = testing::folder_state(folder.path());
  std::mt19937 random(20261122);
  std::uniform_int_distribution<int> pause_us(0, 60000);
  for (int round = 0; round < 25; ++round) {
    pid_t child = testing::fork_worker([&] {
      for (;;)
        for (const std::string& name : database_files(folder.path())) repair_database(folder.path() / name);
    });
    std::this_thread::sleep_for(std::chrono::microseconds(pause_us(random)));
    ASSERT_TRUE(testing::stop_worker(child)) << "the repair failed by itself in round " << round;
    ASSERT_EQ(testing::folder_state(folder.path()), before) << "after round " << round;
  }
  // A scratch file the last kill left is never listed, and the next repair clears it.
  EXPECT_EQ(database_files(folder.path()).size(), before.size());
  EXPECT_EQ(repair_database(folder.path() / "cada.db"), RepairOutcome::Repaired);
  EXPECT_FALSE(fs::exists(folder.path() / kScratchFile));
  EXPECT_EQ(testing::folder_state(folder.path()), before);
}

TEST(MaintenanceRepair, CompactsAndKeepsTheRows) {
  testing::ScratchFolder folder;
  fill(folder.path());
  Workspace::close_all();
  auto size_before = fs::file_size(folder.file("cada.db"));
  const auto before = testing::folder_state(folder.path());
  // A cached connection of our own is let go, not left writing to the old file.
  Workspace::open_database("\\CADA.MDB").open_recordset("Select count(*) from CADA");
  EXPECT_EQ(repair_database(folder.file("cada.db")), RepairOutcome::Repaired);
  EXPECT_LT(fs::file_size(folder.file("cada.db")), size_before);
  Workspace::open_database("\\CADA.MDB").execute("Insert into CADA (CODIGO, A1) values ('9999', 'NOVO')");
  SqliteFile file(folder.file("cada.db"), SQLITE_OPEN_READONLY);
  EXPECT_EQ(file.column("SELECT A1 FROM CADA WHERE CODIGO = '9999'"), std::vector<std::string>{"NOVO"});
  // No statistics are gathered.
  EXPECT_TRUE(file.column("SELECT name FROM sqlite_master WHERE name LIKE 'sqlite_stat%'").empty());
  EXPECT_EQ(before.size(), testing::folder_state(folder.path()).size());
}

TEST(MaintenanceRepair, ADamagedFileIsReportedAndLeftAsItIs) {
  testing::ScratchFolder folder;
  fill(folder.path());
  Workspace::close_all();
  fs::path file = folder.file("cada.db");
  {
    // Garbage over a page in the middle of the table.
    std::fstream out(file, std::ios::in | std::ios::out | std::ios::binary);
    out.seekp(static_cast<std::streamoff>(fs::file_size(file) / 2 / 4096 * 4096 + 8));
    out << std::string(2000, '\xA5');
  }
  std::ifstream in(file, std::ios::binary);
  std::string damaged{std::istreambuf_iterator<char>(in), {}};
  in.close();
  std::ofstream(folder.path() / kScratchFile) << "a partial copy left by a crash";

  EXPECT_EQ(repair_database(file), RepairOutcome::Damaged);
  std::ifstream again(file, std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(again), {}), damaged) << "the damaged file was changed";
  EXPECT_FALSE(fs::exists(folder.path() / kScratchFile));
  EXPECT_EQ(repair_database(folder.file("caixa.db")), RepairOutcome::Repaired);
}

TEST(MaintenanceRepair, PassesOverTheFileTheOldScreenSkipped) {
  for (const char* name : {"natu.db", "NATU.DB", "Natu.db"}) EXPECT_TRUE(skipped_by_repair(name)) << name;
  for (const char* name : {"cada.db", "natu2.db", "natu"}) EXPECT_FALSE(skipped_by_repair(name)) << name;
}

}  // namespace
}  // namespace mz::maintenance
