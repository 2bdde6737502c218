// mostruz [--pasta DIR] [init DIR | sql FILE STATEMENT | script FILE... | report TEMPLATE --pdf OUT |
//          backup | restore NAME | repair]
#include <unistd.h>

#include <ctime>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "core/error.h"
#include "store/data_folder.h"
#include "store/database.h"
#include "store/dialect.h"
#include "desktop/desktop.h"
#include "maintenance/backup.h"
#include "maintenance/files.h"
#include "maintenance/repair.h"
#include "print/render.h"
#include "print/report.h"
#include "print/spreadsheet.h"
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
  std::cerr << "uso: mostruz [--pasta PASTA] [init PASTA | sql ARQUIVO \"INSTRUÇÃO\" | script ARQUIVO... |"
               " report MODELO --pdf|--xlsx SAIDA [--formula \"FÓRMULA\"] | backup | restore \"Backup dd.mm.aaaa\" |"
               " repair]\n";
  return 2;
}

void print_report(const store::SetupReport& report, const fs::path& folder) {
  std::cout << "Pasta de dados: " << fs::absolute(folder).string() << "\n";
  std::cout << report.files_created.size() << " arquivos criados, " << report.tables_created.size()
            << " tabelas criadas, " << report.columns_added.size() << " colunas acrescentadas, "
            << report.templates_copied.size() << " modelos de relatório copiados.\n";
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

// The machine's clock, for the heading of a report and the name of a backup.
Date local_now() {
  std::time_t t = std::time(nullptr);
  std::tm local{};
  localtime_r(&t, &local);
  return Date::from_ymd_hms(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                            local.tm_sec);
}
Date local_today() { return local_now().date_only(); }

// For a scheduled task: the day's backup folder, replaced on the same day.
int run_backup(const fs::path& folder) {
  std::string name = maintenance::backup_name(local_today());
  int count = maintenance::make_backup(folder, name);
  std::cout << count << " arquivos copiados para " << (fs::absolute(folder) / name).string() << "\n";
  return 0;
}

// Puts a backup back after the user's yes; the current data are kept first.
int run_restore(const fs::path& folder, const std::string& name) {
  if (!fs::is_directory(folder / name)) {
    std::cerr << "Backup não encontrado: " << name << "\n";
    return 1;
  }
  std::string safety = maintenance::safety_backup_name(folder, local_now());
  std::cout << "Restaurar o " << name << "? Os dados atuais serão substituídos; antes disso, serão salvos em \""
            << safety << "\". (s/n) " << std::flush;
  std::string answer;
  std::getline(std::cin, answer);
  if (answer != "s" && answer != "S" && answer != "sim" && answer != "SIM") {
    std::cout << "Nada foi alterado.\n";
    return 1;
  }
  maintenance::restore_backup(folder, name, safety);
  std::cout << "Backup restaurado. Os dados anteriores estão em \"" << safety << "\".\n";
  return 0;
}

// Every database file but the one the screen passes over; a damaged file is
// named and left as it is, and makes the exit status 1.
int run_repair(const fs::path& folder) {
  int damaged = 0;
  for (const std::string& name : maintenance::database_files(folder)) {
    if (maintenance::skipped_by_repair(name)) continue;
    bool whole = maintenance::repair_database(folder / name) == maintenance::RepairOutcome::Repaired;
    std::cout << name << (whole ? ": reparado\n" : ": DANIFICADO, não foi alterado\n");
    damaged += whole ? 0 : 1;
  }
  return damaged ? 1 : 0;
}

// Renders a template over the data file it names, as a screen would.
int run_report(const std::vector<std::string>& args) {
  std::string name, pdf, xlsx, formula;
  for (size_t i = 1; i < args.size(); ++i) {
    std::string* option = args[i] == "--pdf" ? &pdf : args[i] == "--xlsx" ? &xlsx : args[i] == "--formula" ? &formula
                                                                                                           : nullptr;
    if (option && i + 1 < args.size()) *option = args[++i];
    else if (!option && name.empty()) name = args[i];
    else return usage();
  }
  if (name.empty() || pdf.empty() == xlsx.empty()) return usage();
  print::ReportRequest request;
  request.report_file_name = name;
  request.data_file = print::template_data_file(name);
  request.selection_formula = formula;
  request.destination = print::Destination::File;
  request.spreadsheet = !xlsx.empty();
  print::Document document = print::run_report(request, local_today());
  if (request.spreadsheet) print::write_spreadsheet(document, xlsx);
  else print::write_pdf(document, pdf);
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
    if (args[0] == "report") {
      store::Workspace::set_folder(folder);
      return run_report(args);
    }
    if (args[0] == "sql") {
      if (args.size() != 3) return usage();
      store::Workspace::set_folder(folder);
      return run_sql(args[1], args[2]);
    }
    if (args[0] == "backup" || args[0] == "repair") {
      if (args.size() != 1) return usage();
      store::Workspace::set_folder(folder);
      return args[0] == "backup" ? run_backup(folder) : run_repair(folder);
    }
    if (args[0] == "restore") {
      if (args.size() != 2) return usage();
      store::Workspace::set_folder(folder);
      return run_restore(folder, args[1]);
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
