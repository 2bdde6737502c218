#include "store/unit.h"

#include <algorithm>

#include "core/error.h"
#include "store/connection.h"

namespace mz::store {
namespace {

std::string schema_of(size_t index) { return index == 0 ? "main" : "f" + std::to_string(index); }

std::string normal_path(std::string_view file) { return Workspace::file_path(file).lexically_normal().string(); }

}  // namespace

Unit::Unit(const std::vector<std::string_view>& files) {
  for (auto f : files) files_.push_back(normal_path(f));
  // One order for every unit, so that two units over shared files take their
  // locks in the same order and cannot wait on each other.
  std::sort(files_.begin(), files_.end());
  files_.erase(std::unique(files_.begin(), files_.end()), files_.end());
  if (files_.empty() || files_.size() > kMaxFiles)
    throw Error(dberr::kGeneric, "Uma gravação abrange de 1 a " + std::to_string(kMaxFiles) + " arquivos.");
  conn_ = Workspace::unit_connection(std::vector<std::filesystem::path>(files_.begin(), files_.end()));
  conn_->before_write();
  conn_->check(sqlite3_exec(conn_->handle(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr));
}

Unit::~Unit() {
  if (!done_) sqlite3_exec(conn_->handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

Database Unit::database(std::string_view file) const {
  auto it = std::find(files_.begin(), files_.end(), normal_path(file));
  if (it == files_.end())
    item_not_found(file);
  return Database(conn_, std::string(file), schema_of(static_cast<size_t>(it - files_.begin())));
}

void Unit::commit() {
  if (done_) throw Error(dberr::kGeneric, "A transação já foi concluída.");
  conn_->before_write();
  conn_->check(sqlite3_exec(conn_->handle(), "COMMIT", nullptr, nullptr, nullptr));
  done_ = true;
}

}  // namespace mz::store
