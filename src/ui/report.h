#pragma once
// Report1: a screen's report component. The screen sets the data file, the
// selection formula and the template, then runs it (Action = 1); the
// destination is preset when the screen declares the component.
#include <optional>
#include <string>

#include "print/report.h"

namespace mz::ui {

class Runtime;

class Report {
 public:
  Report(Runtime& runtime, print::Destination preset) : runtime_(runtime), destination_(preset) {}

  std::string data_files;         // DataFiles(0)
  std::string selection_formula;  // SelectionFormula
  std::string report_file_name;   // ReportFileName
  std::optional<print::Margins> margins;
  // Preset with a file destination: the file is a spreadsheet of the list.
  bool spreadsheet = false;

  // Action = 1: lays the report out and hands it to the host for its
  // destination. Errors of the template or the data file propagate.
  void action(int value = 1);

 private:
  Runtime& runtime_;
  print::Destination destination_;
};

// Report1 preset to the window and Report2 to the printer, as the screens
// that ask "Deseja visualizar a impressão?" hold them.
struct ReportPair {
  explicit ReportPair(Runtime& rt)
      : window(rt, print::Destination::Window), printer(rt, print::Destination::Printer) {}
  Report window, printer;
};

// Asks whether to preview, then runs the template over `data` by the chosen
// component; a failed print shows "Operação não realizada. Verifique a
// impressora." and leaves the screen as it is.
void preview_or_print(Runtime& rt, ReportPair& reports, const std::string& report_file, const std::string& data,
                      const std::string& formula = "");

// CommonDialog1.Action = 5: the printer dialog. The choice becomes the
// current printer; cancelling is not a failure, the print goes on.
void choose_printer(Runtime& runtime);

}  // namespace mz::ui
