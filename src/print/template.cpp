#include "print/template.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <stdexcept>

#include "core/error.h"
#include "core/words.h"
#include "print/report.h"
#include "store/names.h"

namespace mz::print {
namespace {

// Reads the words of one statement in order.
class Statement {
 public:
  explicit Statement(std::vector<Word> words) : words_(std::move(words)) {}
  const std::string& keyword() const { return words_[0].text; }
  bool more() const { return next_ < words_.size(); }
  const Word& word() {
    if (!more()) throw std::invalid_argument("faltam argumentos em " + keyword());
    return words_[next_++];
  }
  // Takes the next word when it is this bare word.
  bool take(const char* bare_word) {
    if (!more() || words_[next_].quoted || words_[next_].text != bare_word) return false;
    ++next_;
    return true;
  }
  std::string bare() {
    const Word& w = word();
    if (w.quoted) throw std::invalid_argument("esperava um nome, veio \"" + w.text + "\"");
    return w.text;
  }
  std::string quoted() {
    const Word& w = word();
    if (!w.quoted) throw std::invalid_argument("esperava um texto entre aspas, veio " + w.text);
    return w.text;
  }
  // Measures take a decimal point or a comma: "2.5" and "2,5" alike.
  double number() {
    std::string w = bare();
    for (char& c : w)
      if (c == ',') c = '.';
    double v = -1;
    auto [end, ec] = std::from_chars(w.data(), w.data() + w.size(), v);
    if (ec != std::errc() || end != w.data() + w.size() || v < 0) throw std::invalid_argument("esperava uma medida, veio " + w);
    return v;
  }
  int whole() {
    double v = number();
    if (v < 1 || v != static_cast<int>(v)) throw std::invalid_argument("esperava um número inteiro positivo");
    return static_cast<int>(v);
  }
  void done() const {
    if (more()) throw std::invalid_argument("sobra " + words_[next_].text + " em " + keyword());
  }

 private:
  std::vector<Word> words_;
  size_t next_ = 1;
};

bool take_align(const std::string& w, Align& align) {
  if (w == "right") align = Align::Right;
  else if (w == "center") align = Align::Center;
  else if (w == "left") align = Align::Left;
  else return false;
  return true;
}

void parse_list_statement(Template& t, Statement& s) {
  const std::string& k = s.keyword();
  if (k == "subtitle") {
    t.subtitle = parse_field_text(s.quoted());
  } else if (k == "column") {
    ListColumn c;
    std::string caption = s.quoted();
    c.caption = parse_field_text(caption);
    c.width = s.number();
    c.text = parse_field_text(s.quoted());
    while (s.more()) {
      std::string w = s.bare();
      if (w == "sum") c.sum = true;
      else if (!take_align(w, c.align)) throw std::invalid_argument("opção desconhecida " + w);
    }
    auto has_field = [](const Piece& p) { return p.source == Source::Column; };
    if (c.sum && std::none_of(c.text.begin(), c.text.end(), has_field))
      throw std::invalid_argument("coluna somada sem campo: " + caption);
    t.columns.push_back(std::move(c));
  } else if (k == "group") {
    ListGroup g;
    g.column = store::lower_name(s.bare());
    g.header = parse_field_text(s.quoted());
    if (s.more()) g.footer = parse_field_text(s.quoted());
    t.groups.push_back(std::move(g));
  } else if (k == "total") {
    t.has_total = true;
    t.total = parse_field_text(s.quoted());
  } else {
    throw std::invalid_argument("instrução desconhecida numa lista: " + k);
  }
}

void parse_form_statement(Template& t, Statement& s) {
  const std::string& k = s.keyword();
  if (k == "cell") {
    t.cell_width = s.number();
    t.cell_height = s.number();
  } else if (k == "grid") {
    t.across = s.whole();
    t.down = s.whole();
  } else if (k == "pitch") {
    t.pitch_x = s.number();
    t.pitch_y = s.number();
  } else if (k == "text") {
    FormItem item;
    item.x = s.number();
    item.y = s.number();
    item.text = parse_field_text(s.quoted());
    while (s.more()) {
      std::string w = s.bare();
      if (w == "size") item.size = s.number();
      else if (w == "width") item.width = s.number();
      else if (w == "bold") item.bold = true;
      else if (w == "wrap") item.wrap = true;
      else if (!take_align(w, item.align)) throw std::invalid_argument("opção desconhecida " + w);
    }
    if (item.wrap && item.width <= 0) throw std::invalid_argument("wrap pede width");
    t.items.push_back(std::move(item));
  } else if (k == "line" || k == "box" || k == "barcode") {
    FormItem item;
    item.kind = k == "line" ? FormItemKind::Line : k == "box" ? FormItemKind::Box : FormItemKind::Barcode;
    item.x = s.number();
    item.y = s.number();
    item.x2 = s.number();
    item.y2 = s.number();
    if (item.kind == FormItemKind::Barcode) item.text = parse_field_text(s.quoted());
    t.items.push_back(std::move(item));
  } else {
    throw std::invalid_argument("instrução desconhecida num formulário: " + k);
  }
}

void parse_statement(Template& t, Statement& s, bool& kind_seen) {
  const std::string& k = s.keyword();
  if (k == "report") {
    std::string kind = s.bare();
    if (kind == "list") t.kind = Template::Kind::List;
    else if (kind == "form") t.kind = Template::Kind::Form;
    else throw std::invalid_argument("tipo de relatório desconhecido: " + kind);
    kind_seen = true;
  } else if (!kind_seen) {
    throw std::invalid_argument("o modelo começa por report list ou report form");
  } else if (k == "data") {
    t.data_file = s.bare();
  } else if (k == "table") {
    t.table = s.bare();
  } else if (k == "title") {
    t.title = s.quoted();
  } else if (k == "page") {
    if (s.take("a4")) {
      std::string orientation = s.more() ? s.bare() : "portrait";
      if (orientation != "portrait" && orientation != "landscape")
        throw std::invalid_argument("orientação desconhecida: " + orientation);
      bool landscape = orientation == "landscape";
      t.page_width = landscape ? 297 : 210;
      t.page_height = landscape ? 210 : 297;
    } else {
      t.page_width = s.number();
      t.page_height = s.number();
    }
  } else if (k == "margins") {
    t.margin_top = s.number();
    t.margin_left = s.number();
    t.margin_right = s.number();
    t.margin_bottom = s.number();
  } else if (k == "font") {
    t.font_size = s.number();
  } else if (k == "order") {
    while (s.more()) {
      std::string w = s.bare();
      if (w == "desc" && !t.order.empty()) t.order.back().descending = true;
      else t.order.push_back({store::lower_name(w), false});
    }
  } else if (t.kind == Template::Kind::List) {
    parse_list_statement(t, s);
  } else {
    parse_form_statement(t, s);
  }
  s.done();
}

Source field_source(const std::string& field) {
  if (field == "hoje") return Source::Today;
  if (field == "pagina") return Source::Page;
  if (field == "paginas") return Source::PageCount;
  if (field == "contagem") return Source::Count;
  if (field.rfind("loja.", 0) == 0) return Source::Shop;
  return Source::Column;
}

// "loja.a1" .. "loja.a6": the shop's identity lines.
size_t shop_line(const std::string& field) {
  static const char* const kLines[] = {"loja.a1", "loja.a2", "loja.a3", "loja.a4", "loja.a5", "loja.a6"};
  for (size_t i = 0; i < std::size(kLines); ++i)
    if (field == kLines[i]) return i;
  throw std::invalid_argument("a loja só tem os campos A1 a A6: " + field);
}

}  // namespace

FieldText parse_field_text(std::string_view text) {
  FieldText pieces;
  std::string literal;
  auto flush = [&] {
    if (!literal.empty()) pieces.push_back({literal, "", "", Source::Literal, 0});
    literal.clear();
  };
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if ((c == '{' || c == '}') && i + 1 < text.size() && text[i + 1] == c) {
      literal += c;
      ++i;
    } else if (c == '{') {
      size_t end = text.find('}', i);
      if (end == std::string_view::npos) throw std::invalid_argument("chave sem fechamento em \"" + std::string(text) + "\"");
      std::string_view inside = text.substr(i + 1, end - i - 1);
      size_t colon = inside.find(':');
      std::string field = store::lower_name(inside.substr(0, colon));
      if (field.empty()) throw std::invalid_argument("campo vazio em \"" + std::string(text) + "\"");
      flush();
      Piece piece{"", field, colon == std::string_view::npos ? "" : std::string(inside.substr(colon + 1)),
                  field_source(field), 0};
      if (piece.source == Source::Shop) piece.shop_line = shop_line(field);
      pieces.push_back(std::move(piece));
      i = end;
    } else if (c == '}') {
      throw std::invalid_argument("chave sem abertura em \"" + std::string(text) + "\"");
    } else {
      literal += c;
    }
  }
  flush();
  return pieces;
}

template <typename Self, typename Visit>
void Template::for_each_text(Self& self, Visit visit) {
  visit(self.subtitle);
  visit(self.total);
  for (auto& c : self.columns) {
    visit(c.caption);
    visit(c.text);
  }
  for (auto& g : self.groups) {
    visit(g.header);
    visit(g.footer);
  }
  for (auto& item : self.items) visit(item.text);
}

std::vector<std::string> Template::columns_used() const {
  std::set<std::string> used;
  for_each_text(*this, [&](const FieldText& text) {
    for (const Piece& p : text)
      if (p.source == Source::Column) used.insert(p.field);
  });
  for (const auto& g : groups) used.insert(g.column);
  for (const auto& key : order) used.insert(key.column);
  return {used.begin(), used.end()};
}

void Template::bind_columns(const std::function<size_t(const std::string&)>& place) {
  for_each_text(*this, [&](FieldText& text) {
    for (Piece& p : text)
      if (p.source == Source::Column) p.column = place(p.field);
  });
}

Template parse_template(std::string_view text, const std::string& name) {
  Template t;
  bool kind_seen = false;
  int line_number = 0;
  size_t start = 0;
  while (start <= text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string_view::npos) end = text.size();
    ++line_number;
    try {
      std::vector<Word> words = split_words(text.substr(start, end - start));
      if (!words.empty()) {
        Statement s(std::move(words));
        parse_statement(t, s, kind_seen);
      }
    } catch (const std::invalid_argument& e) {
      throw Error(kBadTemplate, "Modelo de relatório inválido: " + name + ", linha " + std::to_string(line_number) +
                                    ": " + e.what() + ".");
    }
    start = end + 1;
  }
  if (!kind_seen || t.table.empty())
    throw Error(kBadTemplate, "Modelo de relatório inválido: " + name + ": faltam report e table.");
  return t;
}

}  // namespace mz::print
