#pragma once
// What a template's placeholders read: the selected rows of the data file,
// the shop's identity, today and the page being laid out.
#include <string>
#include <vector>

#include "core/value.h"
#include "print/template.h"
#include "store/shop_identity.h"

namespace mz::print {

struct ReportRows {
  std::vector<std::string> columns;  // lower case, in the table's order
  std::vector<std::vector<Value>> rows;
  // The column's position, or -1.
  int index(const std::string& lower_name) const;
};

// Stands for the page count until the last page is laid out.
inline constexpr const char* kPageCountMark = "\x01paginas\x01";

struct ReportContext {
  const ReportRows* data = nullptr;
  store::ShopIdentity identity;
  Date today;
  int page = 1;
  long count = 0;  // rows of the group or of the report, for {contagem}

  // The text with its placeholders filled from `row` (nullptr: no row).
  std::string fill(const FieldText& text, const std::vector<Value>* row) const;
};

// A value added up by a sum column: money and numbers, also written as text.
Currency sum_value(const Value& value);

// The text cut at the edge of a box `width` millimetres wide.
std::string fit_text(const std::string& text, double width, double size, bool bold);

// Puts the page count in place of its mark on every page.
void number_pages(Document& document);

Document layout_list(const Template& t, const ReportContext& context);
Document layout_form(const Template& t, const ReportContext& context);

inline constexpr double kMmPerPoint = 25.4 / 72;

}  // namespace mz::print
