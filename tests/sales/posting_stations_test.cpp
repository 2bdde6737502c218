// A sale is all there or not there at all: after a station dies in the middle
// of recording, and when two stations record into one folder at once.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <map>
#include <random>
#include <thread>

#include "core/error.h"
#include "sales/venda/posting.h"
#include "store/database.h"
#include "support/scratch_folder.h"

namespace mz::sales {
namespace {

const Date kToday = Date::from_ymd(2026, 11, 24);

// A new shop's folder in memory where the machine has one: what is tested
// here is the locking and the journal, and disk syncs would only slow it.
class StationFolder {
 public:
  StationFolder() {
    std::filesystem::path shm = "/dev/shm";
    if (!std::filesystem::is_directory(shm)) shm = std::filesystem::temp_directory_path();
    path_ = shm / ("mostruz-stations-" + std::to_string(getpid()));
    std::filesystem::remove_all(path_);
    std::filesystem::copy(scratch_.path(), path_, std::filesystem::copy_options::recursive);
    store::Workspace::set_folder(path_);
  }
  ~StationFolder() {
    store::Workspace::close_all();
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
  }
  const std::filesystem::path& path() const { return path_; }

  // A journal left by a station that died inside a unit, not yet rolled back.
  bool has_hot_journal() const {
    for (const auto& entry : std::filesystem::directory_iterator(path_))
      if (entry.path().string().ends_with("-journal") && entry.file_size() > 0) return true;
    return false;
  }

 private:
  testing::ScratchFolder scratch_;
  std::filesystem::path path_;
};

// Two lines, a down payment and three instalments: rows in every file.
SaleOnScreen sale_of(const std::string& customer) {
  SaleOnScreen s;
  s.c1 = customer;
  s.ven = "JOANA";
  s.k1 = "24/11/2026";
  s.k4 = "CARNÊ";
  s.k5 = "3";
  s.w1 = s.w3 = "150,00";
  s.w2 = "0,00";
  s.w4 = "50,00";
  s.w5 = "0,00";
  s.w6 = "100,00";
  s.a2 = "P";
  s.items = {{"1", ">001201-CAMISA POLO", "PP", "50,00", "50,00"}, {"2", ">001203-CAMISA POLO", "M", "50,00", "100,00"}};
  s.instalments = {{"1", "24/12/2026", "33,33", "CONTAS", "CARNÊ"},
                   {"2", "23/01/2027", "33,33", "CONTAS", "CARNÊ"},
                   {"3", "22/02/2027", "33,33", "CONTAS", "CARNÊ"}};
  return s;
}

// Rows of each sale in each file: VENDA, VENDA1, Contas, Caixa.
using Tally = std::map<std::string, std::array<int, 4>>;
constexpr std::array<int, 4> kWholeSale{2, 3, 4, 1};

Tally tally(const std::filesystem::path& folder) {
  store::Workspace::set_folder(folder);
  Tally t;
  const std::pair<const char*, const char*> counts[] = {
      {"VENDA.MDB", "SELECT CODIGO, count(*) FROM VENDA GROUP BY CODIGO"},
      {"VENDA1.MDB", "SELECT CODIGO, count(*) FROM VENDA GROUP BY CODIGO"},
      {"Contas.Mdb", "SELECT D4, count(*) FROM Cada GROUP BY D4"},
      {"Caixa.Mdb", "SELECT A3, count(*) FROM Cada GROUP BY A3"}};
  for (size_t file = 0; file < 4; ++file) {
    store::Recordset rs = store::Workspace::open_database(counts[file].first).open_recordset(counts[file].second);
    for (; !rs.eof(); rs.move_next()) t[rs[0].text()][file] = static_cast<int>(rs[1].value().to_number());
  }
  return t;
}

int distinct_codes(const char* file) {
  store::Recordset rs =
      store::Workspace::open_database(file).open_recordset("Select count(*) from (select distinct codigo from Cada)");
  return static_cast<int>(rs[0].value().to_number());
}

// Records sales until killed, or `count` of them; a sale that met the other
// station's lock is recorded again, as the clerk would press the button again.
void station(const std::filesystem::path& folder, const std::string& name, int count) {
  store::Workspace::set_folder(folder);
  for (int i = 0; count < 0 || i < count; ++i) {
    for (;;) {
      try {
        post_sale(sale_of(name), kToday);
        break;
      } catch (const Error& e) {
        if (e.number() != 3186) throw;
      }
    }
  }
}

pid_t start_station(const std::filesystem::path& folder, const std::string& name, int count) {
  pid_t pid = fork();
  if (pid == 0) {
    int status = 0;
    try {
      station(folder, name, count);
    } catch (const std::exception& e) {
      fprintf(stderr, "%s: %s\n", name.c_str(), e.what());
      status = 1;
    }
    _exit(status);  // no test-runner clean-up in the child
  }
  return pid;
}

TEST(SalePostingStations, AStationKilledMidSaleLeavesWholeSalesOnly) {
  StationFolder folder;
  std::mt19937 random(20261124);
  std::uniform_int_distribution<int> moment_ms(5, 120);
  int killed_inside_a_unit = 0;
  for (int round = 0; round < 12; ++round) {
    store::Workspace::close_all();  // no connection may cross a fork
    pid_t pid = start_station(folder.path(), "caixa " + std::to_string(round), -1);
    ASSERT_GT(pid, 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(moment_ms(random)));
    kill(pid, SIGKILL);
    int status = 0;
    waitpid(pid, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the station stopped by itself in round " << round;
    if (folder.has_hot_journal()) ++killed_inside_a_unit;
  }
  EXPECT_GT(killed_inside_a_unit, 0);
  Tally t = tally(folder.path());
  EXPECT_GT(t.size(), 12u);
  for (const auto& [number, rows] : t) EXPECT_EQ(rows, kWholeSale) << "sale " << number;
  EXPECT_EQ(distinct_codes("Contas.Mdb"), 4 * static_cast<int>(t.size()));
  EXPECT_EQ(distinct_codes("Caixa.Mdb"), static_cast<int>(t.size()));
}

TEST(SalePostingStations, TwoStationsRecordEverySaleUnderItsOwnNumber) {
  constexpr int kSalesPerStation = 200;
  StationFolder folder;
  store::Workspace::close_all();
  pid_t first = start_station(folder.path(), "estação 1", kSalesPerStation);
  pid_t second = start_station(folder.path(), "estação 2", kSalesPerStation);
  for (pid_t pid : {first, second}) {
    ASSERT_GT(pid, 0);
    int status = 0;
    waitpid(pid, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  }
  Tally t = tally(folder.path());
  ASSERT_EQ(t.size(), 2u * kSalesPerStation);
  EXPECT_EQ(t.begin()->first, "00000001");
  EXPECT_EQ(t.rbegin()->first, "00000400");
  for (const auto& [number, rows] : t) EXPECT_EQ(rows, kWholeSale) << "sale " << number;
  EXPECT_EQ(distinct_codes("Contas.Mdb"), 4 * 2 * kSalesPerStation);
  EXPECT_EQ(distinct_codes("Caixa.Mdb"), 2 * kSalesPerStation);
  store::Recordset names = store::Workspace::open_database("VENDA.MDB")
                               .open_recordset("SELECT NOME, count(*) FROM VENDA GROUP BY NOME ORDER BY NOME");
  for (const char* name : {"estação 1", "estação 2"}) {
    ASSERT_FALSE(names.eof());
    EXPECT_EQ(names[0].text(), name);
    EXPECT_EQ(names[1].text(), std::to_string(2 * kSalesPerStation));
    names.move_next();
  }
}

}  // namespace
}  // namespace mz::sales
