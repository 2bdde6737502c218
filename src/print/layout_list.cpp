// A list: the standard heading on every page, the column captions, the rows,
// groups with their subtotals and the closing total.
#include "core/format.h"
#include "core/text.h"
#include "print/render.h"
#include "print/report_data.h"

namespace mz::print {
namespace {

double line_height(double size) { return size * kMmPerPoint * 1.35; }

class ListLayout {
 public:
  ListLayout(const Template& t, ReportContext context) : t_(t), context_(std::move(context)) {
    double x = t.margin_left;
    for (const auto& c : t.columns) {
      column_x_.push_back(x);
      x += c.width;
    }
    right_ = t.page_width - t.margin_right;
    bottom_ = t.page_height - t.margin_bottom;
    row_height_ = line_height(t.font_size);
    doc_.width = t.page_width;
    doc_.height = t.page_height;
    const auto& rows = context_.data->rows;
    const std::vector<Value>* first = rows.empty() ? nullptr : &rows.front();
    for (const auto& c : t.columns) {
      captions_.push_back(context_.fill(c.caption, first));
      sums_by_column_.push_back(c.sum ? summed_field(c.text) : nullptr);
    }
    doc_.table.push_back(captions_);
    for (const auto& g : t.groups) group_columns_.push_back(static_cast<size_t>(context_.data->index(g.column)));
  }

  Document run() {
    const auto& rows = context_.data->rows;
    const size_t levels = t_.groups.size();
    sums_.assign(levels + 1, std::vector<Currency>(t_.columns.size()));
    counts_.assign(levels + 1, 0);
    new_page();
    for (size_t r = 0; r < rows.size(); ++r) {
      size_t changed = r == 0 ? 0 : first_changed_group(rows[r - 1], rows[r]);
      if (r > 0)
        for (size_t g = levels; g-- > changed;) close_group(g, rows[r - 1]);
      for (size_t g = changed; g < levels; ++g) open_group(g, rows[r]);
      add_row(rows[r]);
    }
    if (!rows.empty())
      for (size_t g = levels; g-- > 0;) close_group(g, rows.back());
    if (t_.has_total) {
      context_.count = counts_[levels];
      sum_line(context_.fill(t_.total, rows.empty() ? nullptr : &rows.back()), sums_[levels]);
    }
    return std::move(doc_);
  }

 private:
  // The outermost group whose column differs between two rows, or the count
  // of groups when none does.
  size_t first_changed_group(const std::vector<Value>& before, const std::vector<Value>& row) const {
    for (size_t g = 0; g < group_columns_.size(); ++g)
      if (before[group_columns_[g]].text() != row[group_columns_[g]].text()) return g;
    return group_columns_.size();
  }

  // The placeholder a sum column adds up: its first column.
  static const Piece* summed_field(const FieldText& text) {
    for (const Piece& p : text)
      if (p.source == Source::Column) return &p;
    return nullptr;
  }

  Page& page() { return doc_.pages.back(); }

  void text(double x, double y, double width, std::string s, double size, bool bold, Align align) {
    page().items.emplace_back(std::in_place_type<TextItem>, x, y, width, std::move(s), size, bold, align);
  }

  void new_page() {
    doc_.pages.emplace_back();
    context_.page = static_cast<int>(doc_.pages.size());
    const double left = t_.margin_left, width = right_ - left;
    double y = t_.margin_top;
    text(left, y, width * 0.7, fit_text(context_.identity[0], width * 0.7, 11, true), 11, true, Align::Left);
    text(left, y, width, "Emitido em " + format(Value(context_.today), "dd/mm/yyyy"), 8, false, Align::Right);
    y += line_height(11);
    std::string address;
    for (size_t i : {2u, 3u})
      if (!trim(context_.identity[i]).empty()) address += (address.empty() ? "" : " - ") + trim(context_.identity[i]);
    if (!trim(context_.identity[1]).empty()) address += (address.empty() ? "Fone: " : " - Fone: ") + trim(context_.identity[1]);
    if (!address.empty()) {
      text(left, y, width, fit_text(address, width, 8, false), 8, false, Align::Left);
      y += line_height(8);
    }
    y += 1;
    text(left, y, width, fit_text(t_.title, width * 0.75, 12, true), 12, true, Align::Center);
    text(left, y, width, "Página " + std::to_string(context_.page) + " de " + kPageCountMark, 8, false, Align::Right);
    y += line_height(12);
    if (!t_.subtitle.empty() && !context_.data->rows.empty()) {
      std::string sub = context_.fill(t_.subtitle, &context_.data->rows.front());
      text(left, y, width, fit_text(sub, width, t_.font_size, false), t_.font_size, false, Align::Center);
      y += line_height(t_.font_size);
    }
    y += 1.5;
    for (size_t c = 0; c < t_.columns.size(); ++c) {
      const ListColumn& col = t_.columns[c];
      text(column_x_[c], y, col.width - 1, fit_text(captions_[c], col.width - 1, t_.font_size, true), t_.font_size, true,
           col.align);
    }
    y += row_height_;
    page().items.emplace_back(std::in_place_type<LineItem>, left, y, right_, y, 0.4);
    y_ = y + 0.8;
  }

  // Room for `lines` more lines on this page, or a new page.
  void make_room(int lines) {
    if (y_ + lines * row_height_ > bottom_) new_page();
  }

  void add_row(const std::vector<Value>& row) {
    make_room(1);
    doc_.table.emplace_back();
    for (size_t c = 0; c < t_.columns.size(); ++c) {
      const ListColumn& col = t_.columns[c];
      doc_.table.back().push_back(context_.fill(col.text, &row));
      std::string s = fit_text(doc_.table.back().back(), col.width - 1, t_.font_size, false);
      if (!s.empty()) text(column_x_[c], y_, col.width - 1, std::move(s), t_.font_size, false, col.align);
      if (sums_by_column_[c]) {
        Currency v = sum_value(row[sums_by_column_[c]->column]);
        for (auto& level : sums_) level[c] = level[c] + v;
      }
    }
    for (long& n : counts_) ++n;
    y_ += row_height_;
  }

  void open_group(size_t g, const std::vector<Value>& row) {
    sums_[g].assign(t_.columns.size(), Currency{});
    counts_[g] = 0;
    std::string header = context_.fill(t_.groups[g].header, &row);
    if (header.empty()) return;
    make_room(2);
    y_ += 0.8;
    double width = right_ - t_.margin_left;
    text(t_.margin_left, y_, width, fit_text(header, width, t_.font_size, true), t_.font_size, true, Align::Left);
    y_ += row_height_;
  }

  void close_group(size_t g, const std::vector<Value>& row) {
    context_.count = counts_[g];
    sum_line(context_.fill(t_.groups[g].footer, &row), sums_[g]);
  }

  bool has_sums() const {
    for (const Piece* summed : sums_by_column_)
      if (summed) return true;
    return false;
  }

  // Where the first summed column starts: the room a closing line's text has.
  double caption_room() const {
    for (size_t c = 0; c < sums_by_column_.size(); ++c)
      if (sums_by_column_[c]) return column_x_[c] - t_.margin_left;
    return right_ - t_.margin_left;
  }

  // A closing line: its text left, the sums under their columns, a rule
  // above. A text with no room left of the sums takes a line of its own.
  void sum_line(const std::string& caption, const std::vector<Currency>& sums) {
    if (caption.empty() && !has_sums()) return;
    const double room = caption_room();
    const bool own_line = !caption.empty() && room <= 2 && has_sums();
    make_room(own_line ? 2 : 1);
    page().items.emplace_back(std::in_place_type<LineItem>, t_.margin_left, y_ + 0.2, right_, y_ + 0.2, 0.2);
    y_ += 0.6;
    const double width = own_line ? right_ - t_.margin_left : room;
    if (!caption.empty() && width > 2)
      text(t_.margin_left, y_, width, fit_text(caption, width - 1, t_.font_size, true), t_.font_size, true, Align::Left);
    if (own_line) y_ += row_height_;
    for (size_t c = 0; c < t_.columns.size(); ++c) {
      const Piece* summed = sums_by_column_[c];
      if (!summed) continue;
      const std::string pattern = summed->pattern.empty() ? "###,##0.00" : summed->pattern;
      const ListColumn& col = t_.columns[c];
      text(column_x_[c], y_, col.width - 1, format(Value(sums[c]), pattern), t_.font_size, true, col.align);
    }
    y_ += row_height_ + 0.8;
  }

  const Template& t_;
  ReportContext context_;
  Document doc_;
  std::vector<double> column_x_;
  std::vector<std::string> captions_;
  std::vector<const Piece*> sums_by_column_;  // the field a sum column adds up, nullptr elsewhere
  std::vector<size_t> group_columns_;
  double right_ = 0, bottom_ = 0, row_height_ = 0, y_ = 0;
  std::vector<std::vector<Currency>> sums_;  // per group level, the report's last
  std::vector<long> counts_;
};

}  // namespace

Document layout_list(const Template& t, const ReportContext& context) { return ListLayout(t, context).run(); }

}  // namespace mz::print
