// A form: one row's cell laid out from the template's items, cells across
// then down the sheet, a new sheet when they are all used.
#include "core/text.h"
#include "print/barcode.h"
#include "print/render.h"
#include "print/report_data.h"

namespace mz::print {
namespace {

// Breaks a text into lines that fit the width, at blanks where it can.
std::vector<std::string> wrap(const std::string& text, double width, double size, bool bold) {
  std::vector<std::string> lines;
  std::string line;
  size_t i = 0;
  while (i < text.size()) {
    size_t blank = text.find(' ', i);
    std::string word = text.substr(i, blank == std::string::npos ? std::string::npos : blank - i);
    i = blank == std::string::npos ? text.size() : blank + 1;
    std::string candidate = line.empty() ? word : line + " " + word;
    if (line.empty() || text_width(candidate, size, bold) <= width) {
      line = candidate;
      continue;
    }
    lines.push_back(line);
    line = word;
  }
  if (!line.empty() || lines.empty()) lines.push_back(line);
  return lines;
}

void lay_out_cell(const Template& t, const ReportContext& context, const std::vector<Value>& row, double cx, double cy,
                  Page& page) {
  for (const FormItem& item : t.items) {
    switch (item.kind) {
      case FormItemKind::Text: {
        double size = item.size > 0 ? item.size : t.font_size;
        std::string s = context.fill(item.text, &row);
        if (s.empty()) break;
        if (!item.wrap) {
          if (item.width > 0) s = fit_text(s, item.width, size, item.bold);
          page.items.emplace_back(std::in_place_type<TextItem>, cx + item.x, cy + item.y, item.width, std::move(s), size,
                                  item.bold, item.align);
          break;
        }
        double y = cy + item.y;
        for (std::string& line : wrap(s, item.width, size, item.bold)) {
          page.items.emplace_back(std::in_place_type<TextItem>, cx + item.x, y, item.width,
                                  fit_text(line, item.width, size, item.bold), size, item.bold, item.align);
          y += size * kMmPerPoint * 1.25;
        }
        break;
      }
      case FormItemKind::Line:
        page.items.emplace_back(std::in_place_type<LineItem>, cx + item.x, cy + item.y, cx + item.x2, cy + item.y2,
                                0.3);
        break;
      case FormItemKind::Box:
        page.items.emplace_back(std::in_place_type<BoxItem>, cx + item.x, cy + item.y, item.x2, item.y2, 0.3);
        break;
      case FormItemKind::Barcode: {
        std::string data(code39_data(context.fill(item.text, &row)));
        if (!data.empty())
          page.items.emplace_back(std::in_place_type<BarcodeItem>, cx + item.x, cy + item.y, item.x2, item.y2, data);
        break;
      }
    }
  }
}

}  // namespace

Document layout_form(const Template& t, const ReportContext& context) {
  Document doc;
  doc.width = t.page_width;
  doc.height = t.page_height;
  const double cell_w = t.cell_width > 0 ? t.cell_width : t.page_width - t.margin_left - t.margin_right;
  const double cell_h = t.cell_height > 0 ? t.cell_height : t.page_height - t.margin_top - t.margin_bottom;
  const double pitch_x = t.pitch_x > 0 ? t.pitch_x : cell_w;
  const double pitch_y = t.pitch_y > 0 ? t.pitch_y : cell_h;
  const size_t per_page = static_cast<size_t>(t.across) * static_cast<size_t>(t.down);
  ReportContext cell_context = context;
  const auto& rows = context.data->rows;
  for (size_t i = 0; i < rows.size(); ++i) {
    size_t slot = i % per_page;
    if (slot == 0) doc.pages.emplace_back();
    cell_context.page = static_cast<int>(doc.pages.size());
    double cx = t.margin_left + static_cast<double>(slot % static_cast<size_t>(t.across)) * pitch_x;
    double cy = t.margin_top + static_cast<double>(slot / static_cast<size_t>(t.across)) * pitch_y;
    lay_out_cell(t, cell_context, rows[i], cx, cy, doc.pages.back());
  }
  if (doc.pages.empty()) doc.pages.emplace_back();  // an empty run still gives its sheet
  return doc;
}

}  // namespace mz::print
