#include "maintenance/backup.h"

#include <algorithm>
#include <cstdio>
#include <tuple>

#include "core/error.h"
#include "core/format.h"
#include "maintenance/files.h"
#include "store/connection.h"
#include "store/data_folder.h"
#include "store/database.h"

namespace mz::maintenance {

namespace fs = std::filesystem;

namespace {

constexpr const char* kPrefix = "Backup ";
constexpr int kPathNotFound = 76;  // the old runtime's "Path not found"

// Year, month, day and the rest of a backup folder's name, to put the newest first.
std::tuple<std::string, std::string, std::string, std::string> sort_key(const std::string& name) {
  std::string date = name.substr(std::string(kPrefix).size());
  if (date.size() < 10) return {"", "", "", date};
  return {date.substr(6, 4), date.substr(3, 2), date.substr(0, 2), date.substr(10)};
}

// A file SQLite cannot read (damaged, or no database at all) has no snapshot;
// a lock that outlasts the patience is no such case.
bool unreadable(const Error& e) { return e.number() != store::dberr::kLocked; }

// Puts a file in another's place in one rename, so that a crash leaves the
// old file or the new one. A journal left beside the old file would be
// played back into the new one, so it goes first.
void replace_file(const fs::path& from, const fs::path& to) {
  fs::path incoming = to;
  incoming += ".restaurando";
  fs::copy_file(from, incoming, fs::copy_options::overwrite_existing);
  sync_to_disk(incoming);
  fs::path journal = to;
  journal += "-journal";
  fs::remove(journal);
  fs::rename(incoming, to);
  sync_to_disk(to.parent_path());
}

// The copy of the data a restore replaces: a file that cannot be read is kept
// as it is rather than stopping the restore that is to mend it.
void save_before_restore(const fs::path& folder, const std::string& safety) {
  fs::path target = folder / safety;
  fs::create_directory(target);
  for (const std::string& file : database_files(folder)) {
    try {
      snapshot_database(folder / file, target / file);
    } catch (const Error& e) {
      if (!unreadable(e)) throw;
      fs::copy_file(folder / file, target / file, fs::copy_options::overwrite_existing);
    }
  }
  for (const std::string& file : report_templates(folder)) fs::copy_file(folder / file, target / file);
}

}  // namespace

std::string backup_name(Date day) { return kPrefix + format(Value(day), "dd.mm.yyyy"); }

int make_backup(const fs::path& folder, const std::string& name, const std::function<void(int)>& copied) {
  fs::path target = folder / name;
  if (fs::exists(target)) fs::remove_all(target);
  fs::create_directory(target);
  int count = 0;
  auto counted = [&] {
    ++count;
    if (copied) copied(count);
  };
  for (const std::string& file : database_files(folder)) {
    snapshot_database(folder / file, target / file);
    counted();
  }
  for (const std::string& file : report_templates(folder)) {
    fs::copy_file(folder / file, target / file, fs::copy_options::overwrite_existing);
    counted();
  }
  return count;
}

std::vector<std::string> backups(const fs::path& folder) {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    std::string name = entry.path().filename().string();
    if (entry.is_directory() && name.rfind(kPrefix, 0) == 0) names.push_back(name);
  }
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return sort_key(a) > sort_key(b); });
  return names;
}

std::string safety_backup_name(const fs::path& folder, Date now) {
  char time[16];
  std::snprintf(time, sizeof time, "%02d.%02d.%02d", now.hour(), now.minute(), now.second());
  std::string base = backup_name(now) + " " + time + " antes da restauração";
  std::string name = base;
  for (int n = 2; fs::exists(folder / name); ++n) name = base + " (" + std::to_string(n) + ")";
  return name;
}

void restore_backup(const fs::path& folder, const std::string& name, const std::string& safety) {
  fs::path source = folder / name;
  if (name.empty() || !fs::is_directory(source)) throw Error(kPathNotFound, "Backup não encontrado: " + name);
  // Our own connections let go, so that nothing cached outlives the old contents.
  store::Workspace::close_all();
  save_before_restore(folder, safety);
  for (const std::string& file : database_files(source)) {
    // Through SQLite, so that a station reading meanwhile sees the old
    // contents or the new; a file no longer a database is replaced whole.
    try {
      snapshot_database(source / file, folder / file);
    } catch (const Error& e) {
      if (!unreadable(e)) throw;
      replace_file(source / file, folder / file);
    }
  }
  for (const std::string& file : report_templates(source))
    fs::copy_file(source / file, folder / file, fs::copy_options::overwrite_existing);
  store::Workspace::close_all();
  // A backup from an older program gets the columns this one needs.
  store::upgrade_shop_folder(folder);
}

}  // namespace mz::maintenance
