#pragma once
// Laid-out pages: what a report, a label sheet or a printed document puts on
// paper, in millimetres from the top-left corner of the sheet. The same pages
// go to PDF, to page images for the preview, and to text for tests.
#include <string>
#include <variant>
#include <vector>

namespace mz::print {

enum class Align { Left, Center, Right };

// One line of text; y is the top of the line box.
struct TextItem {
  double x = 0, y = 0, width = 0;  // width 0: no box, the text starts at x
  std::string text;
  double size = 9;                 // points
  bool bold = false;
  Align align = Align::Left;
};
struct LineItem {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0, width = 0.3;
};
struct BoxItem {
  double x = 0, y = 0, width = 0, height = 0, line_width = 0.3;
};
// A Code 39 symbol of `data` (without the asterisks), filling the box.
struct BarcodeItem {
  double x = 0, y = 0, width = 0, height = 0;
  std::string data;
};
using Item = std::variant<TextItem, LineItem, BoxItem, BarcodeItem>;

struct Page {
  std::vector<Item> items;
};

struct Document {
  std::string title;
  double width = 210, height = 297;  // A4 portrait
  std::vector<Page> pages;
  // A list's captions and then its rows, cell by cell as shown: what a
  // spreadsheet of the report holds. Empty for forms.
  std::vector<std::vector<std::string>> table;
};

// The text of a page as lines, top to bottom; the pieces of one line joined
// left to right by a blank. What tests compare.
std::vector<std::string> page_text(const Page& page);

}  // namespace mz::print
