#include "shell/program.h"

namespace mz::shell {

ui::Program program() {
  ui::Program p;
  // Screens register themselves here as they are built.
  p.register_screens = [](ui::Runtime&) {};
  p.start = [](ui::Runtime& rt) { rt.show("VERI"); };
  return p;
}

}  // namespace mz::shell
