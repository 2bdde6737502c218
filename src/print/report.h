#pragma once
// A report run as the screens set it up: the data file, the record filter,
// the template and the destination preset in the screen's report component.
// The template is read from the data folder, the rows from the data file,
// and the pages are laid out here; the host shows, prints or saves them.
#include <optional>
#include <string>

#include "core/value.h"
#include "print/page.h"

namespace mz::print {

enum class Destination { Window, Printer, File };

// Page margins as the label screen sets them, in twips (1/1440 inch).
struct Margins {
  int top = 0, left = 0, right = 0, bottom = 0;
};

struct ReportRequest {
  std::string data_file;          // DataFiles(0): a file of the data folder, any spelling, "\reci.MDB"
  std::string selection_formula;  // "" selects every row
  std::string report_file_name;   // the template, "\RECI.rpt"; looked up in the data folder
  Destination destination = Destination::Window;
  std::optional<Margins> margins;  // overrides the template's own margins
  bool spreadsheet = false;        // to a file: a spreadsheet of the list rather than a PDF
};

// Error number of a template that is missing or cannot be read.
inline constexpr int kBadTemplate = 20504;

// Reads the template and the rows it selects and lays the pages out.
// Throws Error kBadTemplate on a missing or malformed template, the store's
// errors on a missing data file, and 3075 on a formula it cannot read.
Document run_report(const ReportRequest& request, Date today);

// The data file a template names for itself ("data reci.MDB"), for a run
// that has no screen to name one; Error kBadTemplate when it names none.
std::string template_data_file(const std::string& template_name);

// The template's name as the request gives it, without folder: "RECI.rpt".
std::string template_name(const ReportRequest& request);

}  // namespace mz::print
