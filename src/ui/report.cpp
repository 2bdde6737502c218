#include "ui/report.h"

#include "core/error.h"
#include "ui/runtime.h"

namespace mz::ui {

void Report::action(int value) {
  if (value != 1) return;
  print::ReportRequest request{data_files, selection_formula, report_file_name, destination_, margins, spreadsheet};
  print::Document document = print::run_report(request, runtime_.host().today());
  runtime_.host().show_report(request, document);
}

void choose_printer(Runtime& runtime) { (void)runtime.host().choose_printer(); }

void preview_or_print(Runtime& rt, ReportPair& reports, const std::string& report_file, const std::string& data,
                      const std::string& formula) {
  const bool preview =
      rt.message("Deseja visualizar a impressão?", Buttons::YesNo, Icon::Question) == Answer::Yes;
  Report& report = preview ? reports.window : reports.printer;
  report.data_files = data;
  report.selection_formula = formula;
  report.report_file_name = report_file;
  try {
    report.action(1);
  } catch (const Error&) {
    rt.message("Operação não realizada. Verifique a impressora.");
  }
}

}  // namespace mz::ui
