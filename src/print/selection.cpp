#include "print/selection.h"

#include <cctype>

#include "core/error.h"
#include "store/collation.h"
#include "store/names.h"

namespace mz::print {
namespace {

constexpr int kBadFormula = 3075;

class Reader {
 public:
  explicit Reader(std::string_view s) : s_(s) {}

  [[noreturn]] void fail() const {
    throw Error(kBadFormula, "Fórmula de seleção inválida: '" + std::string(s_) + "'.");
  }
  void blanks() {
    while (i_ < s_.size() && std::isspace(static_cast<unsigned char>(s_[i_]))) ++i_;
  }
  bool done() {
    blanks();
    return i_ >= s_.size();
  }
  bool take(std::string_view word) {
    blanks();
    if (s_.size() - i_ < word.size()) return false;
    for (size_t k = 0; k < word.size(); ++k)
      if (std::tolower(static_cast<unsigned char>(s_[i_ + k])) != std::tolower(static_cast<unsigned char>(word[k])))
        return false;
    i_ += word.size();
    return true;
  }
  void expect(std::string_view word) {
    if (!take(word)) fail();
  }
  std::string until(char end) {
    size_t stop = s_.find(end, i_);
    if (stop == std::string_view::npos) fail();
    std::string out(s_.substr(i_, stop - i_));
    i_ = stop + 1;
    return out;
  }
  // A quoted value runs to the apostrophe that closes the condition: the one
  // the formula ends after, or that "and" and the next condition follow. The
  // screens put names in as they stand, so D'Ávila is read whole.
  std::string quoted() {
    for (size_t stop = s_.find('\'', i_); stop != std::string_view::npos; stop = s_.find('\'', stop + 1)) {
      Reader rest(s_.substr(stop + 1));
      if (rest.done() || (rest.take("and") && rest.take("{"))) {
        std::string out(s_.substr(i_, stop - i_));
        i_ = stop + 1;
        return out;
      }
    }
    fail();
  }
  int number() {
    blanks();
    size_t start = i_;
    while (i_ < s_.size() && std::isdigit(static_cast<unsigned char>(s_[i_]))) ++i_;
    if (start == i_) fail();
    return std::stoi(std::string(s_.substr(start, i_ - start)));
  }

  Selection::Condition condition() {
    expect("{");
    std::string name = until('}');
    size_t dot = name.rfind('.');
    Selection::Condition c;
    c.column = store::lower_name(dot == std::string::npos ? name : name.substr(dot + 1));
    for (const char* op : {"<>", "<=", ">=", "=", "<", ">"})
      if (take(op)) {
        c.op = op;
        break;
      }
    if (c.op.empty()) fail();
    if (take("'")) {
      c.value = Value(quoted());
    } else if (take("Date")) {
      expect("(");
      int y = number();
      expect(",");
      int m = number();
      expect(",");
      int d = number();
      expect(")");
      if (!is_valid_ymd(y, m, d)) fail();
      c.value = Value(Date::from_ymd(y, m, d));
    } else {
      fail();
    }
    return c;
  }

 private:
  std::string_view s_;
  size_t i_ = 0;
};

bool holds(int comparison, const std::string& op) {
  if (op == "=") return comparison == 0;
  if (op == "<>") return comparison != 0;
  if (op == "<") return comparison < 0;
  if (op == "<=") return comparison <= 0;
  if (op == ">") return comparison > 0;
  return comparison >= 0;
}

int compare(const Value& field, const Value& wanted) {
  if (wanted.kind() == Value::Kind::Date) {
    double a = field.to_date().date_only().serial, b = wanted.raw_date().serial;
    return (a > b) - (a < b);
  }
  return store::compare_text(field.text(), wanted.text());
}

}  // namespace

Selection Selection::parse(std::string_view formula) {
  Selection selection;
  Reader reader(formula);
  if (reader.done()) return selection;
  selection.conditions_.push_back(reader.condition());
  while (!reader.done()) {
    reader.expect("and");
    selection.conditions_.push_back(reader.condition());
  }
  return selection;
}

bool Selection::matches(const std::function<Value(const std::string&)>& field) const {
  for (const auto& c : conditions_) {
    Value v = field(c.column);
    if (v.is_null() || !holds(compare(v, c.value), c.op)) return false;  // a null meets no condition
  }
  return true;
}

}  // namespace mz::print
