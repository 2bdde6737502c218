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

// One line of a script split into words; quoted text loses its quotes and
// its escapes (\" \\ \t \xHH) are resolved. Throws std::runtime_error on a
// syntax error.
struct ScriptWord {
  std::string text;
  bool quoted = false;
};
std::vector<ScriptWord> split_script_line(const std::string& line);

}  // namespace mz::ui
