#include "support/scratch_folder.h"

#include <unistd.h>

#include <atomic>

#include "store/data_folder.h"
#include "store/database.h"

namespace mz::testing {
namespace fs = std::filesystem;
namespace {

fs::path unique_temp(const char* stem) {
  static std::atomic<int> counter{0};
  return fs::temp_directory_path() /
         (std::string(stem) + "-" + std::to_string(getpid()) + "-" + std::to_string(counter++));
}

const fs::path& template_folder() {
  static const fs::path folder = [] {
    fs::path p = unique_temp("mostruz-template");
    store::setup_data_folder(p);
    return p;
  }();
  return folder;
}

struct TemplateCleanup {
  ~TemplateCleanup() {
    std::error_code ec;
    fs::remove_all(template_folder(), ec);
  }
};

}  // namespace

ScratchFolder::ScratchFolder() : path_(unique_temp("mostruz-test")) {
  const fs::path& source = template_folder();
  static TemplateCleanup cleanup;  // made after the template, so it goes first
  fs::copy(source, path_, fs::copy_options::recursive);
  store::Workspace::set_folder(path_);
}

ScratchFolder::~ScratchFolder() {
  store::Workspace::close_all();
  std::error_code ec;
  fs::remove_all(path_, ec);
}

TempFolder::TempFolder() : path_(unique_temp("mostruz-tmp")) { fs::create_directories(path_); }

TempFolder::~TempFolder() {
  store::Workspace::close_all();
  std::error_code ec;
  fs::remove_all(path_, ec);
}

}  // namespace mz::testing
