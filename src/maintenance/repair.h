#pragma once
// Repair and compaction of a database file in place: SQLite's integrity check
// and a compaction into a scratch file that is checked and then renamed over
// the original in one step, so that no crash leaves the data only in the
// scratch file. Statistics are never gathered: the program relies on none.
#include <filesystem>
#include <string>

namespace mz::maintenance {

enum class RepairOutcome { Repaired, Damaged };

// The file is held against other writers from its check to the rename. A
// file that fails its integrity check is left exactly as it is (Damaged).
RepairOutcome repair_database(const std::filesystem::path& file);

// The one file the repair of all files passes over, compared in capitals.
bool skipped_by_repair(const std::string& name);

}  // namespace mz::maintenance
