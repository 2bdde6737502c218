#pragma once
// A data folder set up as a new shop's, fresh for each test: the first one is
// set up from the catalogue, the others are copies of it.
#include <filesystem>
#include <string>

namespace mz::testing {

class ScratchFolder {
 public:
  ScratchFolder();  // also becomes the workspace's folder
  ~ScratchFolder();
  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path file(const std::string& storage_name) const { return path_ / storage_name; }

 private:
  std::filesystem::path path_;
};

// An empty temporary folder, removed with the object.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace mz::testing
