#include "maintenance/files.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <thread>

#include "core/error.h"
#include "core/text.h"
#include "maintenance/sqlite_file.h"

namespace mz::maintenance {

namespace fs = std::filesystem;

namespace {

constexpr int kFileAccessError = 75;  // the old runtime's "Path/File access error"
constexpr auto kLockPatience = std::chrono::seconds(30);

std::vector<std::string> files_ending(const fs::path& folder, const std::string& extension) {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    std::string name = entry.path().filename().string();
    if (ucase(entry.path().extension().string()) == extension && ucase(name) != ucase(kScratchFile))
      names.push_back(name);
  }
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) { return ucase(a) < ucase(b); });
  return names;
}

}  // namespace

std::vector<std::string> database_files(const fs::path& folder) { return files_ending(folder, ".DB"); }
std::vector<std::string> report_templates(const fs::path& folder) { return files_ending(folder, ".RPT"); }

void snapshot_database(const fs::path& from, const fs::path& to) {
  // Read-write, so that a journal left by a crashed station is rolled back first.
  SqliteFile source(from, SQLITE_OPEN_READWRITE);
  SqliteFile target(to, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  auto deadline = std::chrono::steady_clock::now() + kLockPatience;
  for (;;) {
    sqlite3_backup* backup = sqlite3_backup_init(target.get(), "main", source.get(), "main");
    if (!backup) target.fail();
    // All pages in one step: the copy is of one moment of the file.
    int rc = sqlite3_backup_step(backup, -1);
    int finish = sqlite3_backup_finish(backup);
    if (rc == SQLITE_DONE && finish == SQLITE_OK) return;
    bool waiting = rc == SQLITE_BUSY || rc == SQLITE_LOCKED;
    if (!waiting || std::chrono::steady_clock::now() > deadline) target.fail();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
}

void sync_to_disk(const fs::path& path) {
  int fd = ::open(path.c_str(), O_RDONLY);
  if (fd < 0) throw Error(kFileAccessError, "Não foi possível abrir " + path.string());
  int rc = ::fsync(fd);
  ::close(fd);
  if (rc != 0) throw Error(kFileAccessError, "Não foi possível gravar " + path.string() + " no disco");
}

}  // namespace mz::maintenance
