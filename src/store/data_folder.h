#pragma once
// Setting up a shop's data folder from the catalogue.
#include <filesystem>
#include <string>
#include <vector>

namespace mz::store {

struct SetupReport {
  std::vector<std::string> files_created;   // storage names
  std::vector<std::string> tables_created;  // "file: table"
  std::vector<std::string> columns_added;   // "file: table.column"
  std::vector<std::string> templates_copied;  // report templates, "RECI.rpt"
};

// Creates every missing file, table, column and index; a table made here
// gets its delivered rows, and every report template the folder lacks is
// copied in. Nothing that exists is changed.
SetupReport setup_data_folder(const std::filesystem::path& folder);

// A folder without a single database file is a new shop.
bool is_new_shop(const std::filesystem::path& folder);
// An existing shop's tables get the columns and indexes the program has come
// to need; no file or table is created, and a file that cannot be opened as
// a database is left as it is.
SetupReport upgrade_shop_folder(const std::filesystem::path& folder);
// What the program does on start: a new shop's folder is set up; in a folder
// with any database file only the tables there are upgraded, so a missing or
// damaged file shows as such. True when it set the folder up.
bool prepare_shop_folder(const std::filesystem::path& folder);

}  // namespace mz::store
