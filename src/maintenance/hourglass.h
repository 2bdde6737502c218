#pragma once
// The wait pointer for as long as a long task runs, also when it fails.
#include "ui/runtime.h"

namespace mz::maintenance {

class Hourglass {
 public:
  explicit Hourglass(ui::Runtime& rt) : rt_(rt) { rt_.wait_pointer(true); }
  ~Hourglass() { rt_.wait_pointer(false); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  ui::Runtime& rt_;
};

}  // namespace mz::maintenance
