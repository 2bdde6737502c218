#include "maintenance/repair.h"

#include <vector>

#include "core/error.h"
#include "core/text.h"
#include "maintenance/files.h"
#include "maintenance/sqlite_file.h"
#include "store/catalogue.h"
#include "store/connection.h"
#include "store/database.h"
#include "store/sql_text.h"

namespace mz::maintenance {

namespace fs = std::filesystem;

bool skipped_by_repair(const std::string& name) { return ucase(name) == ucase(store::storage_name("NATU.MDB")); }

RepairOutcome repair_database(const fs::path& file) {
  fs::path scratch = file.parent_path() / kScratchFile;
  // Our own connections let go, so that none keeps writing to the replaced file.
  store::Workspace::close_all();
  // A scratch file left by an interrupted compaction is a partial copy: the
  // original was never touched, so the leftover goes.
  fs::remove(scratch);

  SqliteFile original(file, SQLITE_OPEN_READWRITE);
  // Other stations may read but not write until the compacted copy is in place.
  try {
    original.run("BEGIN IMMEDIATE");
  } catch (const Error& e) {
    // Busy is another station at work; anything else is a file SQLite cannot read.
    if (e.number() == store::dberr::kLocked) throw;
    return RepairOutcome::Damaged;
  }
  if (!original.intact()) {
    original.run("ROLLBACK");
    return RepairOutcome::Damaged;
  }
  std::vector<std::string> counts = original.row_counts();
  {
    // VACUUM runs outside a transaction, so from a second connection; it
    // only reads, which the first one's lock allows.
    SqliteFile reader(file, SQLITE_OPEN_READWRITE);
    reader.run("VACUUM INTO " + store::sql_quote(scratch.string()));
  }
  {
    SqliteFile copy(scratch, SQLITE_OPEN_READONLY);
    if (!copy.intact() || copy.row_counts() != counts) {
      fs::remove(scratch);
      throw Error(store::dberr::kGeneric, "A cópia compactada de " + file.filename().string() + " saiu incompleta.");
    }
  }
  sync_to_disk(scratch);
  fs::rename(scratch, file);
  sync_to_disk(file.parent_path());
  original.run("ROLLBACK");
  return RepairOutcome::Repaired;
}

}  // namespace mz::maintenance
