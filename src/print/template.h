#pragma once
// A report template read from its text: a list of rows in columns, or a form
// laid out once per row (documents, booklets, label sheets). The format is
// described in reports/README.md.
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "print/page.h"

namespace mz::print {

// Where a piece of text comes from.
enum class Source { Literal, Column, Today, Page, PageCount, Count, Shop };

// Text with placeholders, split once: literal pieces and fields.
struct Piece {
  std::string literal;  // used when field is empty
  std::string field;    // lower case: a column, "loja.a1", "hoje", "pagina", "paginas", "contagem"
  std::string pattern;  // the format pattern after ':', or ""
  Source source = Source::Literal;
  size_t shop_line = 0;  // of Source::Shop: 0 for A1 .. 5 for A6
  size_t column = 0;     // of Source::Column: its place in the rows, once bound
};
using FieldText = std::vector<Piece>;
FieldText parse_field_text(std::string_view text);  // throws std::invalid_argument on an open brace

struct SortKey {
  std::string column;  // lower case
  bool descending = false;
};

struct ListColumn {
  FieldText caption;  // its placeholders read the first row
  double width = 0;
  FieldText text;
  Align align = Align::Left;
  bool sum = false;
};

struct ListGroup {
  std::string column;  // lower case
  FieldText header, footer;
};

enum class FormItemKind { Text, Line, Box, Barcode };

struct FormItem {
  FormItemKind kind = FormItemKind::Text;
  double x = 0, y = 0, x2 = 0, y2 = 0;  // a line's ends; a box's or barcode's width and height in x2, y2
  FieldText text;
  double size = 0;   // 0: the template's font size
  double width = 0;  // the text's box, 0 for none
  bool bold = false, wrap = false;
  Align align = Align::Left;
};

struct Template {
  enum class Kind { List, Form } kind = Kind::List;
  std::string data_file, table, title;
  FieldText subtitle;
  double page_width = 210, page_height = 297;
  double margin_top = 10, margin_left = 10, margin_right = 10, margin_bottom = 10;
  double font_size = 9;
  std::vector<SortKey> order;

  std::vector<ListColumn> columns;
  std::vector<ListGroup> groups;
  bool has_total = false;
  FieldText total;

  double cell_width = 0, cell_height = 0;  // 0: the sheet inside the margins
  int across = 1, down = 1;
  double pitch_x = 0, pitch_y = 0;  // 0: the cell's size
  std::vector<FormItem> items;

  // Every column a placeholder, a group or the order names, lower case.
  std::vector<std::string> columns_used() const;
  // Gives each placeholder of a column its place in the rows that will fill it.
  void bind_columns(const std::function<size_t(const std::string&)>& place);

 private:
  template <typename Self, typename Visit>
  static void for_each_text(Self& self, Visit visit);
};

// Throws Error kBadTemplate naming the template and the line at fault.
Template parse_template(std::string_view text, const std::string& name);

}  // namespace mz::print
