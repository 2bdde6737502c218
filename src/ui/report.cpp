#include "ui/report.h"

#include "ui/runtime.h"

namespace mz::ui {

void Report::action(int value) {
  if (value != 1) return;
  print::ReportRequest request{data_files, selection_formula, report_file_name, destination_, margins, spreadsheet};
  print::Document document = print::run_report(request, runtime_.host().today());
  runtime_.host().show_report(request, document);
}

void choose_printer(Runtime& runtime) { (void)runtime.host().choose_printer(); }

}  // namespace mz::ui
