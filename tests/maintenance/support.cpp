#include "maintenance/support.h"

#include <sys/wait.h>

#include "maintenance/files.h"
#include "maintenance/sqlite_file.h"

namespace mz::testing {

using maintenance::database_files;
using maintenance::SqliteFile;

std::map<std::string, std::vector<std::string>> folder_state(const std::filesystem::path& folder) {
  std::map<std::string, std::vector<std::string>> state;
  for (const std::string& name : database_files(folder)) {
    SqliteFile file(folder / name, SQLITE_OPEN_READONLY);
    state[name] = file.intact() ? file.row_counts() : std::vector<std::string>{"DAMAGED"};
  }
  return state;
}

bool stop_worker(pid_t pid) {
  kill(pid, SIGKILL);
  int status = 0;
  waitpid(pid, &status, 0);
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

}  // namespace mz::testing
