#pragma once
// The files of a data folder that maintenance works on, and the copy of one
// database file as a consistent snapshot.
#include <filesystem>
#include <string>
#include <vector>

namespace mz::maintenance {

// The scratch file a compaction writes before it takes the file's place. It
// never holds the only copy of anything, so it is left out of every list.
inline constexpr const char* kScratchFile = "tmp.db";

// The database files ("*.mdb" of old) and the report templates ("*.rpt") of
// the folder, by name, in name order.
std::vector<std::string> database_files(const std::filesystem::path& folder);
std::vector<std::string> report_templates(const std::filesystem::path& folder);

// Copies a database file through SQLite's online backup, in one step under a
// read lock, so that a station writing meanwhile never leaves it torn. The
// target is created, or its contents replaced in one transaction.
void snapshot_database(const std::filesystem::path& from, const std::filesystem::path& to);

// Flushes a file, or a folder's entries, to the disk.
void sync_to_disk(const std::filesystem::path& path);

}  // namespace mz::maintenance
