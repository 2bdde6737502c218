#pragma once
// A posting that writes several files commits as one unit: one connection
// holds the files (one opened, the others attached) in one write
// transaction, so that a crash or a failure anywhere leaves all of the
// posting or none of it, and a key read inside the unit stays this
// station's until the commit.
//
//   store::Unit unit({"VENDA.MDB", "Caixa.Mdb"});
//   store::Database caixa = unit.database("Caixa.Mdb");
//   ... statements and recordsets as on any Database ...
//   unit.commit();
//
// Never keep a unit open across a question to the user: the other stations
// wait on its files.
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/database.h"

namespace mz::store {

class Unit {
 public:
  // The most files one connection can hold.
  static constexpr size_t kMaxFiles = 10;

  // Takes the write lock of every file, waiting for other stations as long as
  // any write waits; then Error 3186. A missing file is Error 3024.
  explicit Unit(const std::vector<std::string_view>& files);
  ~Unit();  // rolls back unless committed
  Unit(const Unit&) = delete;
  Unit& operator=(const Unit&) = delete;

  // The file as the unit writes it; its statements speak of its own tables
  // only, though another file of the unit has a table of the same name.
  // A file that is not in the unit is Error 3265.
  Database database(std::string_view file) const;

  // Makes every write of the unit durable at once; a second commit throws.
  // A failed commit (3186 when a reader holds a file) leaves nothing written.
  void commit();

 private:
  std::shared_ptr<Connection> conn_;
  std::vector<std::string> files_;  // full paths, in the order attached
  bool done_ = false;
};

}  // namespace mz::store
