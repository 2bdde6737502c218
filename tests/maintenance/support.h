#pragma once
// What the maintenance tests share: a worker in another process, and the
// state of every file of a folder to compare before and after.
#include <signal.h>
#include <sys/types.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace mz::testing {

// Every table's row count, by file; a file SQLite finds damaged counts as "DAMAGED".
std::map<std::string, std::vector<std::string>> folder_state(const std::filesystem::path& folder);

// Forks a process that runs `work` until it is killed; no connection may be
// open in the caller (they must not cross the fork).
template <typename Work>
pid_t fork_worker(Work work) {
  pid_t pid = fork();
  if (pid != 0) return pid;
  try {
    work();
  } catch (const std::exception& e) {
    std::fprintf(stderr, "processo filho: %s\n", e.what());
  }
  _exit(3);  // no test-runner clean-up in the child
}

// Kills and reaps a worker; false when it had already stopped by itself (its work failed).
bool stop_worker(pid_t pid);

}  // namespace mz::testing
