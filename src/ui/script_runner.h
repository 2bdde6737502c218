#pragma once
// Runs screen scripts headlessly: each in a fresh data folder, through the
// same runtime the desktop uses, with the test host.
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "ui/runtime.h"

namespace mz::ui {

// Puts every screen of the program into a runtime, and starts the program.
struct Program {
  std::function<void(Runtime&)> register_screens;
  std::function<void(Runtime&)> start;
};

// Prints "PASS name" or "FAIL name" with a line per failed expectation, then
// "N passed, N failed"; returns the number of failed scripts.
int run_scripts(const std::vector<std::string>& files, const Program& program, std::ostream& out);

}  // namespace mz::ui
