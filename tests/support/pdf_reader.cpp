#include "support/pdf_reader.h"

#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "support/scratch_folder.h"

namespace mz::testing {
namespace fs = std::filesystem;
namespace {

std::string quoted(const fs::path& path) { return "'" + path.string() + "'"; }

struct Output {
  int status = -1;
  std::string text;
};

Output run(const std::string& command) {
  Output out;
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) throw std::runtime_error("cannot start: " + command);
  char buffer[4096];
  for (size_t n; (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;) out.text.append(buffer, n);
  const int status = pclose(pipe);
  out.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return out;
}

std::string checked(const std::string& command) {
  Output out = run(command);
  if (out.status != 0) throw std::runtime_error("failed (" + std::to_string(out.status) + "): " + command);
  return out.text;
}

}  // namespace

bool have_program(const std::string& name) { return run("command -v '" + name + "' >/dev/null 2>&1").status == 0; }

PdfInfo pdf_info(const fs::path& pdf) {
  const std::string text = checked("pdfinfo " + quoted(pdf) + " 2>&1");
  std::smatch pages, size;
  if (!std::regex_search(text, pages, std::regex(R"(\nPages:\s+(\d+))")) ||
      !std::regex_search(text, size, std::regex(R"(\nPage size:\s+([\d.]+) x ([\d.]+) pts)")))
    throw std::runtime_error("unexpected pdfinfo output: " + text);
  constexpr double kMmPerPoint = 25.4 / 72;
  return {std::stoi(pages[1]), std::stod(size[1]) * kMmPerPoint, std::stod(size[2]) * kMmPerPoint};
}

std::string pdf_text(const fs::path& pdf) { return checked("pdftotext -enc UTF-8 " + quoted(pdf) + " - 2>&1"); }

std::vector<std::string> read_barcodes(const fs::path& pdf, int dpi) {
  TempFolder pages;
  checked("pdftoppm -r " + std::to_string(dpi) + " -gray -png " + quoted(pdf) + " " + quoted(pages.path() / "page") +
          " 2>&1");
  std::vector<fs::path> images;
  for (const auto& entry : fs::directory_iterator(pages.path())) images.push_back(entry.path());
  std::sort(images.begin(), images.end());  // page-01.png, page-02.png, ...
  std::string command = "zbarimg --nodbus -q --raw";
  for (const fs::path& image : images) command += " " + quoted(image);
  Output out = run(command + " 2>/dev/null");
  constexpr int kNothingFound = 4;
  if (out.status != 0 && out.status != kNothingFound) throw std::runtime_error("failed: " + command);
  std::vector<std::string> codes;
  std::istringstream lines(out.text);
  for (std::string line; std::getline(lines, line);)
    if (!line.empty()) codes.push_back(line);
  return codes;
}

}  // namespace mz::testing
