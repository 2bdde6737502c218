#include "store/dialect.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <optional>
#include <set>

#include "core/error.h"
#include "core/text.h"
#include "core/value.h"
#include "store/catalogue.h"
#include "store/collation.h"
#include "store/sql_functions.h"

namespace mz::store {
namespace {

constexpr int kSyntaxError = 3075;

enum class TokenType { Word, Number, String, Date, Symbol, Bracketed };

struct Token {
  TokenType type;
  std::string text;  // as written (strings and dates: the content)
  bool range_bound = false;  // a bound of a prefix range: bound as text, as it stands
};

bool is_word_start(unsigned char c) { return std::isalpha(c) || c == '_' || c >= 0x80; }
bool is_word_char(unsigned char c) { return std::isalnum(c) || c == '_' || c >= 0x80; }

std::string upper_ascii(std::string_view s) {
  std::string out(s);
  for (auto& c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return out;
}

[[noreturn]] void syntax_error(std::string_view statement) {
  throw Error(kSyntaxError, "Erro de sintaxe na expressão de consulta '" + std::string(statement) + "'.");
}

// A quoted text with the quote doubled inside it, as the dialect writes it.
std::string read_quoted(std::string_view s, size_t& i, char quote, std::string_view statement) {
  std::string out;
  ++i;
  while (true) {
    if (i >= s.size()) syntax_error(statement);
    if (s[i] == quote) {
      if (i + 1 < s.size() && s[i + 1] == quote) {
        out += quote;
        i += 2;
        continue;
      }
      ++i;
      return out;
    }
    out += s[i++];
  }
}

std::vector<Token> tokenize(std::string_view s) {
  std::vector<Token> tokens;
  size_t i = 0;
  while (i < s.size()) {
    auto c = static_cast<unsigned char>(s[i]);
    if (std::isspace(c)) {
      ++i;
    } else if (c == '\'' || c == '"') {
      tokens.push_back({TokenType::String, read_quoted(s, i, static_cast<char>(c), s)});
    } else if (c == '#') {
      size_t end = s.find('#', i + 1);
      if (end == std::string_view::npos) syntax_error(s);
      tokens.push_back({TokenType::Date, std::string(s.substr(i + 1, end - i - 1))});
      i = end + 1;
    } else if (c == '[') {
      size_t end = s.find(']', i + 1);
      if (end == std::string_view::npos) syntax_error(s);
      tokens.push_back({TokenType::Bracketed, std::string(s.substr(i, end - i + 1))});
      i = end + 1;
    } else if (std::isdigit(c) || (c == '.' && i + 1 < s.size() && std::isdigit(static_cast<unsigned char>(s[i + 1])) &&
                                   (tokens.empty() || tokens.back().type == TokenType::Symbol))) {
      size_t start = i;
      while (i < s.size() && (std::isdigit(static_cast<unsigned char>(s[i])) || s[i] == '.')) ++i;
      if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
        if (j < s.size() && std::isdigit(static_cast<unsigned char>(s[j]))) {
          i = j;
          while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) ++i;
        }
      }
      tokens.push_back({TokenType::Number, std::string(s.substr(start, i - start))});
    } else if (is_word_start(c)) {
      size_t start = i;
      while (i < s.size() && is_word_char(static_cast<unsigned char>(s[i]))) ++i;
      tokens.push_back({TokenType::Word, std::string(s.substr(start, i - start))});
    } else {
      static const char* kTwo[] = {"<>", "<=", ">=", "!=", "=="};
      std::string sym(1, static_cast<char>(c));
      for (auto two : kTwo)
        if (s.substr(i, 2) == two) sym = two;
      i += sym.size();
      tokens.push_back({TokenType::Symbol, sym});
    }
  }
  return tokens;
}

// Month first, as the dialect writes dates: #11/22/2026# or #11/22/2026 14:05#.
Value date_literal(const std::string& text, std::string_view statement) {
  int month = 0, day = 0, year = 0, hour = 0, minute = 0, second = 0;
  int n = std::sscanf(text.c_str(), "%d/%d/%d %d:%d:%d", &month, &day, &year, &hour, &minute, &second);
  if (n < 3 || !is_valid_ymd(year, month, day) || hour > 23 || minute > 59 || second > 59) syntax_error(statement);
  if (year < 100) year += year < 30 ? 2000 : 1900;
  return Value(Date::from_ymd_hms(year, month, day, hour, minute, second));
}

Value number_literal(const std::string& text) {
  if (text.find_first_of(".eE") == std::string::npos && text.size() < 16) return Value(static_cast<int64_t>(std::stoll(text)));
  return Value(std::stod(text));
}

bool is_keyword(const std::string& upper) {
  static const char* kKeywords[] = {"AND",   "OR",     "NOT",   "BETWEEN", "LIKE", "IS",     "NULL", "IN",
                                    "SELECT", "FROM", "WHERE", "ORDER",   "GROUP", "BY",    "HAVING", "AS",
                                    "ON",    "SET",    "VALUES", "INTO",   "DISTINCT", "ASC", "DESC", "UNION",
                                    "JOIN",  "INNER",  "LEFT",  "RIGHT",   "OUTER", "UPDATE", "DELETE", "INSERT"};
  return std::any_of(std::begin(kKeywords), std::end(kKeywords), [&](const char* k) { return upper == k; });
}

bool is_aggregate(const std::string& upper) {
  static const char* kAggregates[] = {"SUM", "MAX", "MIN", "COUNT", "AVG", "FIRST", "LAST", "STDEV", "VAR"};
  return std::any_of(std::begin(kAggregates), std::end(kAggregates), [&](const char* k) { return upper == k; });
}

bool is_comparison(const Token& t) {
  if (t.type == TokenType::Symbol)
    return t.text == "=" || t.text == "<>" || t.text == "<" || t.text == ">" || t.text == "<=" || t.text == ">=" ||
           t.text == "!=";
  return t.type == TokenType::Word && upper_ascii(t.text) == "LIKE";
}

// The column a token names: a plain word that is no keyword, or [a name].
std::optional<std::string> column_name(const Token& t) {
  if (t.type == TokenType::Bracketed) return t.text.substr(1, t.text.size() - 2);
  if (t.type == TokenType::Word && !is_keyword(upper_ascii(t.text))) return t.text;
  return std::nullopt;
}

// ---- A prefix Like as an index range
//
// "E2 Like 'CAMI*'" matches the texts that begin with CAMI in any case. Under
// our collation those texts lie between CAMI and the least text above them,
// so the statement also says so and SQLite walks the index on the column
// instead of every row. The Like stays as the filter, so the rows are the
// same ones.

// The text before the final stars of a pattern with no other wild card.
// A pattern with no wild card at all is its own prefix: the range holds the
// texts that begin with it, and the Like keeps the equal ones.
std::optional<std::string> pure_prefix(const std::string& pattern) {
  size_t end = pattern.find_last_not_of('*');
  if (end == std::string::npos) return std::nullopt;
  std::string prefix = pattern.substr(0, end + 1);
  if (prefix.find_first_of("*?#[]") != std::string::npos) return std::nullopt;
  return prefix;
}

// Whether the collation ranks every spelling Like takes for the same text
// (upper and lower case) where it ranks the text itself: only then do the
// matches lie together. It holds for every letter but a few, such as "ÿ",
// whose capital sorts apart.
bool ranks_all_cases_together(std::string_view prefix) {
  return text_equal(prefix, ucase(prefix)) && text_equal(prefix, lcase(prefix));
}

// A text that a numeric column would read as a number compares as one; a
// bound that begins so is made only for a column that is text in every
// table that has it (REFERENCIA, NOME), never for one the catalogue does not
// know.
bool may_read_as_number(std::string_view prefix) {
  auto c = static_cast<unsigned char>(prefix.front());
  return std::isdigit(c) || std::isspace(c) || c == '+' || c == '-' || c == '.';
}

bool text_in_every_table(std::string_view column) {
  // The catalogue is fixed: its text-only column names are gathered once.
  static const std::set<std::string> text_only = [] {
    std::map<std::string, bool> all_text;
    for (const FileDef& file : catalogue())
      for (const TableDef& table : file.tables)
        for (const ColumnDef& c : table.columns) {
          auto [it, added] = all_text.emplace(lcase(c.name), true);
          it->second = it->second && c.type == ColumnType::Text;
        }
    std::set<std::string> names;
    for (const auto& [name, text] : all_text)
      if (text) names.insert(name);
    return names;
  }();
  return text_only.count(lcase(column)) > 0;
}

// The least text above every text that begins with prefix: the prefix with
// its last character raised to the first one that sorts after it (after all
// its accented forms and whatever may follow it). None when nothing sorts
// after the prefix.
std::optional<std::string> past_prefix(std::string_view prefix) {
  std::u32string chars = to_u32(prefix);
  while (!chars.empty()) {
    char32_t last = chars.back();
    chars.pop_back();
    std::string head = to_utf8(chars);
    std::string highest = head + to_utf8(std::u32string{last, U'\U0010FFFF'});
    for (char32_t c = last + 1; c <= 0x10FFFF && c <= last + 0x400; ++c) {
      if (c >= 0xD800 && c <= 0xDFFF) continue;
      std::string candidate = head + to_utf8(std::u32string(1, c));
      if (compare_text(candidate, highest) > 0) return candidate;
    }
  }
  return std::nullopt;
}

// The tokens of a column reference ending at `last` ("E2", "grupo.E2",
// "[E2]"): its first token, or none.
std::optional<size_t> column_start(const std::vector<Token>& tokens, size_t last) {
  auto is_name = [](const Token& t) {
    return t.type == TokenType::Bracketed || (t.type == TokenType::Word && !is_keyword(upper_ascii(t.text)));
  };
  if (!is_name(tokens[last])) return std::nullopt;
  if (last >= 2 && tokens[last - 1].type == TokenType::Symbol && tokens[last - 1].text == "." && is_name(tokens[last - 2]))
    return last - 2;
  return last;
}

bool word_is(const Token& t, std::initializer_list<const char*> words) {
  if (t.type != TokenType::Word) return false;
  std::string u = upper_ascii(t.text);
  return std::any_of(words.begin(), words.end(), [&](const char* w) { return u == w; });
}

bool symbol_is(const Token& t, const char* s) { return t.type == TokenType::Symbol && t.text == s; }

// "col Like 'p*'" standing alone as a condition becomes
// "(col >= 'p' COLLATE MZ AND col < 'q' COLLATE MZ AND col Like 'p*')".
std::vector<Token> with_prefix_ranges(std::vector<Token> tokens) {
  for (size_t i = 1; i + 1 < tokens.size(); ++i) {
    if (!word_is(tokens[i], {"LIKE"}) || tokens[i + 1].type != TokenType::String) continue;
    auto prefix = pure_prefix(tokens[i + 1].text);
    if (!prefix || !ranks_all_cases_together(*prefix)) continue;
    auto start = column_start(tokens, i - 1);
    if (!start || *start == 0) continue;
    if (may_read_as_number(*prefix)) {
      auto name = column_name(tokens[i - 1]);
      if (!name || !text_in_every_table(*name)) continue;
    }
    const Token& before = tokens[*start - 1];
    if (!symbol_is(before, "(") && !word_is(before, {"WHERE", "AND", "OR", "NOT"})) continue;
    if (i + 2 < tokens.size()) {
      const Token& after = tokens[i + 2];
      if (!symbol_is(after, ")") && !symbol_is(after, ";") && !word_is(after, {"AND", "OR", "ORDER", "GROUP"})) continue;
    }
    std::vector<Token> column(tokens.begin() + static_cast<long>(*start), tokens.begin() + static_cast<long>(i));
    std::vector<Token> range{{TokenType::Symbol, "("}};
    auto bound = [&](const char* op, const std::string& text) {
      range.insert(range.end(), column.begin(), column.end());
      range.push_back({TokenType::Symbol, op});
      range.push_back({TokenType::String, text, true});
      range.push_back({TokenType::Word, "COLLATE"});
      range.push_back({TokenType::Word, kCollation});
      range.push_back({TokenType::Word, "AND"});
    };
    bound(">=", *prefix);
    if (auto past = past_prefix(*prefix)) bound("<", *past);
    range.insert(range.end(), column.begin(), column.end());
    range.push_back(tokens[i]);
    range.push_back(tokens[i + 1]);
    range.push_back({TokenType::Symbol, ")"});
    size_t next = *start + range.size();
    tokens.erase(tokens.begin() + static_cast<long>(*start), tokens.begin() + static_cast<long>(i + 2));
    tokens.insert(tokens.begin() + static_cast<long>(*start), range.begin(), range.end());
    i = next - 1;
  }
  return tokens;
}

class Translator {
 public:
  explicit Translator(std::string_view statement, std::string_view schema = {})
      : statement_(statement), schema_(schema), tokens_(with_prefix_ranges(tokenize(statement))) {}

  Translation run() {
    classify();
    for (size_t i = 0; i < tokens_.size(); ++i) emit_token(i);
    if (limit_) out_.sql += " LIMIT " + *limit_;
    return std::move(out_);
  }

 private:
  std::string upper(size_t i) const {
    return i < tokens_.size() && tokens_[i].type == TokenType::Word ? upper_ascii(tokens_[i].text) : std::string();
  }
  bool symbol_at(size_t i, const char* s) const {
    return i < tokens_.size() && tokens_[i].type == TokenType::Symbol && tokens_[i].text == s;
  }

  void classify() {
    std::string first = upper(0);
    if (first == "SELECT") out_.kind = StatementKind::Select;
    else if (first == "INSERT") out_.kind = StatementKind::Insert;
    else if (first == "UPDATE") out_.kind = StatementKind::Update;
    else if (first == "DELETE") out_.kind = StatementKind::Delete;
    out_.changes_schema = first == "CREATE" || first == "ALTER" || first == "DROP";

    int depth = 0;
    bool grouped = false, joined = false;
    for (size_t i = 0; i < tokens_.size(); ++i) {
      const Token& t = tokens_[i];
      if (t.type == TokenType::Symbol) {
        if (t.text == "(") ++depth;
        if (t.text == ")") --depth;
        continue;
      }
      std::string u = upper(i);
      if (u.empty()) continue;
      if (depth == 0 && (u == "GROUP" || u == "DISTINCT" || u == "UNION" || u == "JOIN" || u == "HAVING")) grouped = true;
      if (is_aggregate(u) && symbol_at(i + 1, "(")) grouped = true;
      bool names_table = (u == "FROM" && depth == 0) || (u == "INTO" && out_.kind == StatementKind::Insert) ||
                         (i == 0 && u == "UPDATE");
      if (names_table && out_.table.empty() && i + 1 < tokens_.size()) {
        if (auto name = column_name(tokens_[i + 1])) out_.table = *name;
        if (symbol_at(i + 2, ",")) joined = true;
      }
    }
    out_.updatable = out_.kind == StatementKind::Select && !out_.table.empty() && !grouped && !joined;
    if (out_.kind == StatementKind::Insert) read_insert_columns();
  }

  // INSERT INTO t (c1, c2) VALUES (...): the n-th value goes into the n-th column.
  void read_insert_columns() {
    size_t i = 0;
    while (i < tokens_.size() && !symbol_at(i, "(")) ++i;
    for (++i; i < tokens_.size() && !symbol_at(i, ")"); ++i)
      if (auto name = column_name(tokens_[i])) insert_columns_.push_back(*name);
  }

  void append(const std::string& text) {
    if (!out_.sql.empty()) out_.sql += ' ';
    out_.sql += text;
  }

  void add_param(size_t i, Value value) {
    Parameter p{std::move(value), tokens_[i].range_bound ? std::string() : target_column(i), false};
    p.written = (out_.kind == StatementKind::Insert && in_values_) || (out_.kind == StatementKind::Update && in_set_);
    out_.params.push_back(std::move(p));
    append("?");
  }

  // The column a literal is compared with or written into.
  std::string target_column(size_t i) const {
    if (out_.kind == StatementKind::Insert && in_values_ && values_depth_ == 1) {
      bool alone = (symbol_at(i - 1, "(") || symbol_at(i - 1, ",")) && (symbol_at(i + 1, ")") || symbol_at(i + 1, ","));
      if (alone && value_index_ < insert_columns_.size()) return insert_columns_[value_index_];
      return {};
    }
    if (i >= 2 && is_comparison(tokens_[i - 1])) {
      if (auto name = column_name(tokens_[i - 2])) return *name;
    }
    if (i >= 2 && upper(i - 1) == "BETWEEN") {
      if (auto name = column_name(tokens_[i - 2])) return *name;
    }
    if (i >= 4 && upper(i - 1) == "AND" && upper(i - 3) == "BETWEEN") {
      if (auto name = column_name(tokens_[i - 4])) return *name;
    }
    return {};
  }

  void emit_token(size_t i) {
    const Token& t = tokens_[i];
    switch (t.type) {
      case TokenType::String:
        add_param(i, Value(t.text));
        return;
      case TokenType::Date:
        add_param(i, date_literal(t.text, statement_));
        return;
      case TokenType::Number:
        if (skip_next_number_) {  // the count of TOP, moved to LIMIT
          skip_next_number_ = false;
          return;
        }
        // A number in ORDER BY or GROUP BY is a column position, not a value;
        // the hidden row id column moves the positions by one.
        if (in_order_or_group_) append(out_.updatable ? std::to_string(std::stoi(t.text) + 1) : t.text);
        else add_param(i, number_literal(t.text));
        return;
      case TokenType::Bracketed:
        append(in_schema(i));
        return;
      case TokenType::Symbol:
        emit_symbol(i);
        return;
      case TokenType::Word:
        emit_word(i);
        return;
    }
  }

  void emit_symbol(size_t i) {
    const std::string& s = tokens_[i].text;
    if (s == ";") return;  // the final ";" of the dialect
    if (s == "&") return append("||");
    if (s == "*" && upper(i - 1) == "DELETE") return;  // DELETE * FROM t
    if (s == "(") {
      ++depth_;
      if (in_values_) ++values_depth_;
    }
    if (s == ")") {
      --depth_;
      if (in_values_) --values_depth_;
    }
    if (s == "," && in_values_ && values_depth_ == 1) ++value_index_;
    append(s);
  }

  void emit_word(size_t i) {
    std::string u = upper(i);
    if (u == "VALUES") in_values_ = true;
    if (u == "SET") in_set_ = true;
    if (u == "WHERE") in_set_ = false;
    if (u == "BY" && (upper(i - 1) == "ORDER" || upper(i - 1) == "GROUP")) in_order_or_group_ = true;
    if (u == "HAVING" || u == "UNION" || u == "WHERE") in_order_or_group_ = false;
    if (u == "DISTINCTROW") return;
    if (u == "TOP" && i + 1 < tokens_.size() && tokens_[i + 1].type == TokenType::Number) {
      limit_ = tokens_[i + 1].text;
      skip_next_number_ = true;
      return;
    }
    if ((u == "LEFT" || u == "RIGHT") && symbol_at(i + 1, "(")) return append("mz_" + tokens_[i].text);
    append(in_schema(i));
    if (u == "SELECT" && out_.updatable && depth_ == 0) {
      append(std::string("rowid AS ") + kRowIdColumn + " ,");
    }
  }

  // A table the statement names, qualified with the unit's schema.
  std::string in_schema(size_t i) const {
    if (schema_.empty() || !names_table_at(i)) return tokens_[i].text;
    return "\"" + std::string(schema_) + "\"." + tokens_[i].text;
  }

  // After FROM, JOIN, INTO or a leading UPDATE, and each further name of a
  // FROM list.
  bool names_table_at(size_t i) const {
    if (i == 0 || !column_name(tokens_[i])) return false;
    std::string before = upper(i - 1);
    if (before == "FROM" || before == "JOIN" || before == "INTO" || (before == "UPDATE" && i == 1)) return true;
    return i >= 2 && symbol_at(i - 1, ",") && names_table_at(i - 2);
  }

  std::string_view statement_;
  std::string_view schema_;
  std::vector<Token> tokens_;
  Translation out_;
  std::vector<std::string> insert_columns_;
  std::optional<std::string> limit_;
  int depth_ = 0;
  int values_depth_ = 0;
  size_t value_index_ = 0;
  bool in_values_ = false;
  bool in_set_ = false;
  bool in_order_or_group_ = false;
  bool skip_next_number_ = false;
};

}  // namespace

Translation translate(std::string_view statement) { return Translator(statement).run(); }

Translation translate_in_schema(std::string_view statement, std::string_view schema) {
  return Translator(statement, schema).run();
}

}  // namespace mz::store
