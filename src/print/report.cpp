#include "print/report.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/error.h"
#include "core/format.h"
#include "core/regional.h"
#include "core/text.h"
#include "print/render.h"
#include "print/report_data.h"
#include "print/selection.h"
#include "store/catalogue.h"
#include "store/collation.h"
#include "store/database.h"
#include "store/names.h"
#include "store/shipped_reports.h"
#include "store/shop_identity.h"
#include "store/sql_text.h"

namespace mz::print {
namespace fs = std::filesystem;
namespace {

std::string base_name(std::string_view path) {
  size_t slash = path.find_last_of("\\/");
  return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

// The data folder's copy, found in any case spelling; a folder set up before
// the template shipped falls back to the program's own copy.
std::string template_text(const std::string& name) {
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(store::Workspace::folder(), ec)) {
    if (!store::same_name(entry.path().filename().string(), name)) continue;
    std::ifstream in(entry.path(), std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    if (in.bad()) break;
    return text.str();
  }
  for (const auto& shipped : store::shipped_reports())
    if (store::same_name(shipped.name, name)) return shipped.text;
  throw Error(kBadTemplate, "Não foi possível abrir o relatório " + name + ".");
}

// A report prints without the shop's heading rather than not at all.
store::ShopIdentity heading_identity() {
  try {
    return store::shop_identity();
  } catch (const Error&) {
    return {};
  }
}

// The catalogue's type of a column of the data file, if it knows it.
std::optional<store::ColumnType> column_type(const std::string& data_file, const std::string& table,
                                             const std::string& column) {
  const store::FileDef* file = store::find_file(data_file);
  if (!file) return std::nullopt;
  for (const store::TableDef& def : file->tables)
    if (store::same_name(def.name, table))
      for (const store::ColumnDef& c : def.columns)
        if (store::same_name(c.name, column)) return c.type;
  return std::nullopt;
}

std::string date_literal(Date d) { return "#" + format(Value(d), "mm/dd/yyyy") + "#"; }

// The conditions the store can answer with its indexes: text on text
// columns, dates on date columns compared by day as the formula compares
// them. The rows that come back are still checked against the whole formula.
std::string where_clause(const Selection& selection, const std::string& data_file, const std::string& table) {
  std::string where;
  for (const auto& c : selection.conditions()) {
    std::string term;
    const std::string& column = c.column;  // a name of the catalogue's: safe in the statement
    const auto type = column_type(data_file, table, column);
    if (c.value.kind() == Value::Kind::Text && type == store::ColumnType::Text) {
      term = column + " " + c.op + " " + store::sql_quote(c.value.raw_text());
    } else if (c.value.kind() == Value::Kind::Date && type == store::ColumnType::Date) {
      Date day = c.value.raw_date(), next = date_add_days(day, 1);
      if (c.op == "=") term = column + " >= " + date_literal(day) + " and " + column + " < " + date_literal(next);
      else if (c.op == "<=") term = column + " < " + date_literal(next);
      else if (c.op == ">") term = column + " >= " + date_literal(next);
      else if (c.op == ">=" || c.op == "<") term = column + " " + c.op + " " + date_literal(day);
    }
    if (!term.empty()) where += (where.empty() ? " where " : " and ") + term;
  }
  return where;
}

ReportRows read_rows(const std::string& data_file, const Template& t, const Selection& selection) {
  store::Database db = store::Workspace::open_trusted(data_file);
  store::Recordset rs = db.open_recordset("Select * From " + t.table + where_clause(selection, data_file, t.table));
  ReportRows data;
  for (size_t i = 0; i < rs.field_count(); ++i) data.columns.push_back(store::lower_name(rs[i].name()));
  for (const std::string& column : t.columns_used())
    if (data.index(column) < 0)
      throw Error(kBadTemplate, "O relatório usa o campo " + column + ", que a tabela " + t.table + " não tem.");
  for (const auto& c : selection.conditions())
    if (data.index(c.column) < 0) throw Error(3075, "Campo desconhecido na fórmula de seleção: " + c.column + ".");
  for (; !rs.eof(); rs.move_next()) {
    std::vector<Value> row;
    row.reserve(data.columns.size());
    for (size_t i = 0; i < data.columns.size(); ++i) row.push_back(rs[i].value());
    auto field = [&](const std::string& column) { return row[static_cast<size_t>(data.index(column))]; };
    if (selection.matches(field)) data.rows.push_back(std::move(row));
  }
  return data;
}

int compare_values(const Value& a, const Value& b) {
  auto kind_rank = [](const Value& v) {
    switch (v.kind()) {
      case Value::Kind::Empty:
      case Value::Kind::Null: return 0;
      case Value::Kind::Number:
      case Value::Kind::Currency:
      case Value::Kind::Boolean: return 1;
      case Value::Kind::Date: return 2;
      case Value::Kind::Text: return 3;
    }
    return 3;
  };
  int ra = kind_rank(a), rb = kind_rank(b);
  if (ra != rb) return ra < rb ? -1 : 1;
  if (ra == 0) return 0;
  if (ra == 3) return store::compare_text(a.text(), b.text());
  double x = ra == 2 ? a.raw_date().serial : a.to_number(), y = ra == 2 ? b.raw_date().serial : b.to_number();
  return (x > y) - (x < y);
}

void sort_rows(ReportRows& data, const std::vector<SortKey>& order) {
  if (order.empty()) return;
  std::vector<std::pair<size_t, bool>> keys;
  for (const auto& k : order) keys.emplace_back(static_cast<size_t>(data.index(k.column)), k.descending);
  std::stable_sort(data.rows.begin(), data.rows.end(), [&](const auto& a, const auto& b) {
    for (const auto& [i, descending] : keys) {
      int c = compare_values(a[i], b[i]);
      if (c != 0) return descending ? c > 0 : c < 0;
    }
    return false;
  });
}

constexpr double kMmPerTwip = 25.4 / 1440;

}  // namespace

int ReportRows::index(const std::string& lower_name) const {
  auto it = std::find(columns.begin(), columns.end(), lower_name);
  return it == columns.end() ? -1 : static_cast<int>(it - columns.begin());
}

std::string ReportContext::fill(const FieldText& text, const std::vector<Value>* row) const {
  std::string out;
  for (const Piece& p : text) {
    switch (p.source) {
      case Source::Literal: out += p.literal; break;
      case Source::Today: out += format(Value(today), p.pattern.empty() ? "dd/mm/yyyy" : p.pattern); break;
      case Source::Page: out += std::to_string(page); break;
      case Source::PageCount: out += kPageCountMark; break;
      case Source::Count: out += std::to_string(count); break;
      case Source::Shop: out += identity.at(p.shop_line); break;
      case Source::Column:
        if (row) {
          const Value& v = (*row)[p.column];
          out += p.pattern.empty() ? v.text() : format(v, p.pattern);
        }
        break;
    }
  }
  return out;
}

Currency sum_value(const Value& value) {
  switch (value.kind()) {
    case Value::Kind::Currency: return value.raw_currency();
    case Value::Kind::Number: return Currency::from_double(value.raw_number());
    case Value::Kind::Text: return parse_money(value.raw_text()).value_or(Currency{});
    default: return Currency{};
  }
}

std::string fit_text(const std::string& text, double width, double size, bool bold) {
  if (text_width(text, size, bold) <= width) return text;
  std::u32string chars = to_u32(text);
  size_t low = 0, high = chars.size();  // the longest prefix that fits lies in [low, high)
  while (high - low > 1) {
    size_t mid = (low + high) / 2;
    (text_width(to_utf8(chars.substr(0, mid)), size, bold) <= width ? low : high) = mid;
  }
  return to_utf8(chars.substr(0, low));
}

void number_pages(Document& document) {
  const std::string count = std::to_string(document.pages.size());
  for (Page& page : document.pages)
    for (Item& item : page.items)
      if (auto* text = std::get_if<TextItem>(&item)) {
        size_t at;
        while ((at = text->text.find(kPageCountMark)) != std::string::npos)
          text->text.replace(at, std::string_view(kPageCountMark).size(), count);
      }
}

std::string template_data_file(const std::string& template_name) {
  const std::string name = base_name(template_name);
  Template t = parse_template(template_text(name), name);
  if (t.data_file.empty()) throw Error(kBadTemplate, "O relatório " + name + " não indica seu arquivo de dados.");
  return t.data_file;
}

std::string template_name(const ReportRequest& request) { return base_name(request.report_file_name); }

Document run_report(const ReportRequest& request, Date today) {
  const std::string name = template_name(request);
  Template t = parse_template(template_text(name), name);
  if (request.margins) {
    t.margin_top = request.margins->top * kMmPerTwip;
    t.margin_left = request.margins->left * kMmPerTwip;
    t.margin_right = request.margins->right * kMmPerTwip;
    t.margin_bottom = request.margins->bottom * kMmPerTwip;
  }
  ReportRows data = read_rows(request.data_file, t, Selection::parse(request.selection_formula));
  t.bind_columns([&data](const std::string& column) { return static_cast<size_t>(data.index(column)); });
  sort_rows(data, t.order);
  ReportContext context{&data, heading_identity(), today, 1, static_cast<long>(data.rows.size())};
  Document document = t.kind == Template::Kind::List ? layout_list(t, context) : layout_form(t, context);
  document.title = t.title.empty() ? name : t.title;
  number_pages(document);
  return document;
}

}  // namespace mz::print
