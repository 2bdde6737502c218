#pragma once
// The program as a whole: its screens and how it starts.
#include "ui/script_runner.h"

namespace mz::shell {

ui::Program program();

}  // namespace mz::shell
