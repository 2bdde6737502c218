// mostruz [--pasta DIR] [init DIR | sql FILE STATEMENT | script FILE...]
#include <unistd.h>

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "core/error.h"
#include "store/data_folder.h"
#include "store/database.h"
#include "store/dialect.h"
#include "desktop/desktop.h"
#include "shell/program.h"
#include "ui/script_runner.h"

namespace {

namespace fs = std::filesystem;
using namespace mz;

// The program's own folder, where the shop's data always lay.
fs::path program_folder() {
  std::error_code ec;
  fs::path exe = fs::read_symlink("/proc/self/exe", ec);
  return ec ? fs::current_path() : exe.parent_path();
}

int usage() {
  std::cerr << "uso: mostruz [--pasta PASTA] [init PASTA | sql ARQUIVO \"INSTRUÇÃO\" | script ARQUIVO...]\n";
  return 2;
}

void print_report(const store::SetupReport& report, const fs::path& folder) {
  std::cout << "Pasta de dados: " << fs::absolute(folder).string() << "\n";
  std::cout << report.files_created.size() << " arquivos criados, " << report.tables_created.size()
            << " tabelas criadas, " << report.columns_added.size() << " colunas acrescentadas.\n";
  for (const auto& f : report.files_created) std::cout << "  " << f << "\n";
  for (const auto& c : report.columns_added) std::cout << "  + " << c << "\n";
}

int run_init(const fs::path& folder) {
  print_report(store::setup_data_folder(folder), folder);
  return 0;
}

int run_sql(const std::string& file, const std::string& statement) {
  store::Database db = store::Workspace::open_trusted(file);
  if (store::translate(statement).kind != store::StatementKind::Select) {
    db.execute(statement);
    return 0;
  }
  store::Recordset rs = db.open_recordset(statement);
  for (; !rs.eof(); rs.move_next()) {
    std::string line;
    for (size_t i = 0; i < rs.field_count(); ++i) {
      if (i) line += '\t';
      line += rs[i].text();
    }
    std::cout << line << "\n";
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> args;
  fs::path folder = program_folder();
  for (int i = 1; i < argc; ++i) {
    std::string a = argv[i];
    if (a == "--pasta") {
      if (++i >= argc) return usage();
      folder = argv[i];
    } else {
      args.push_back(a);
    }
  }
  try {
    if (args.empty()) return desktop::run_desktop(argc, argv, folder, shell::program());
    if (args[0] == "init") {
      if (args.size() > 2) return usage();
      return run_init(args.size() == 2 ? fs::path(args[1]) : folder);
    }
    if (args[0] == "script") {
      if (args.size() < 2) return usage();
      return ui::run_scripts({args.begin() + 1, args.end()}, shell::program(), std::cout) ? 1 : 0;
    }
    if (args[0] == "sql") {
      if (args.size() != 3) return usage();
      store::Workspace::set_folder(folder);
      return run_sql(args[1], args[2]);
    }
    return usage();
  } catch (const Error& e) {
    std::cerr << "Erro " << e.number() << ": " << e.what() << "\n";
    return 1;
  } catch (const std::exception& e) {
    std::cerr << "Erro: " << e.what() << "\n";
    return 1;
  }
}
