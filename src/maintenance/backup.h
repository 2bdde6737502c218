#pragma once
// The backup of a data folder into a dated sub-folder, and putting one back.
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "core/value.h"

namespace mz::maintenance {

// "Backup 22.11.2026": one folder a day.
std::string backup_name(Date day);

// Copies every database file (as a snapshot) and every report template (as
// it is) of the folder into the sub-folder `name`, which is first removed if
// it exists. `copied` runs after each file with the count so far. Returns
// the count. A file that cannot be copied stops it with an Error.
int make_backup(const std::filesystem::path& folder, const std::string& name,
                const std::function<void(int)>& copied = {});

// The backup folders of the folder, the newest day first.
std::vector<std::string> backups(const std::filesystem::path& folder);

// The folder the current data go to before a restore: "Backup 22.11.2026
// 10.05.00 antes da restauração", never one that exists already.
std::string safety_backup_name(const std::filesystem::path& folder, Date now);

// Puts the backup `name` back in the folder. The current data are saved
// first as the backup `safety`; each database file is then replaced in one
// transaction, and the templates are copied back as they are. Error 76 when
// the backup does not exist.
void restore_backup(const std::filesystem::path& folder, const std::string& name, const std::string& safety);

}  // namespace mz::maintenance
