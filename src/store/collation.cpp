#include "store/collation.h"

#include "core/text.h"

#include <cstdint>
#include <string>
#include <vector>

namespace mz::store {
namespace {

// The plain letter under an accent, in upper case; other characters as they are.
char32_t primary_key(char32_t c) {
  if (c < 0x80) return (c >= 'a' && c <= 'z') ? c - 32 : c;
  static const char kBase[] =
      "AAAAAAACEEEEIIIIDNOOOOO*OUUUUYTS"   // 0xC0-0xDF
      "AAAAAAACEEEEIIIIDNOOOOO/OUUUUYTY";  // 0xE0-0xFF
  if (c >= 0xC0 && c <= 0xFF) {
    char base = kBase[c - 0xC0];
    if (base != '*' && base != '/') return static_cast<char32_t>(base);
  }
  return lower_case(c);
}

bool is_ascii(std::string_view s) {
  for (unsigned char ch : s)
    if (ch >= 0x80) return false;
  return true;
}

int compare_ascii(std::string_view a, std::string_view b) {
  size_t n = a.size() < b.size() ? a.size() : b.size();
  for (size_t i = 0; i < n; ++i) {
    auto ca = primary_key(static_cast<unsigned char>(a[i]));
    auto cb = primary_key(static_cast<unsigned char>(b[i]));
    if (ca != cb) return ca < cb ? -1 : 1;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

template <typename Key>
int compare_by(std::string_view a, std::string_view b, Key key) {
  size_t i = 0, j = 0;
  while (i < a.size() && j < b.size()) {
    char32_t ka = key(next_char(a, i));
    char32_t kb = key(next_char(b, j));
    if (ka != kb) return ka < kb ? -1 : 1;
  }
  if (i < a.size()) return 1;
  if (j < b.size()) return -1;
  return 0;
}

std::u32string folded(std::string_view s) {
  std::u32string out;
  out.reserve(s.size());
  for (size_t i = 0; i < s.size();) out.push_back(lower_case(next_char(s, i)));
  return out;
}

// Matches a [...] set at p (just after '['); advances p past ']'.
bool match_set(const std::u32string& pat, size_t& p, char32_t c) {
  bool negate = p < pat.size() && pat[p] == '!';
  if (negate) ++p;
  bool found = false;
  size_t start = p;
  while (p < pat.size() && (pat[p] != ']' || p == start)) {
    char32_t lo = pat[p];
    if (p + 2 < pat.size() && pat[p + 1] == '-' && pat[p + 2] != ']') {
      char32_t hi = pat[p + 2];
      if (c >= lo && c <= hi) found = true;
      p += 3;
    } else {
      if (c == lo) found = true;
      ++p;
    }
  }
  if (p < pat.size()) ++p;  // the ']'
  return found != negate;
}

bool match_from(const std::u32string& text, size_t t, const std::u32string& pat, size_t p) {
  while (p < pat.size()) {
    char32_t pc = pat[p];
    if (pc == '*') {
      while (p < pat.size() && pat[p] == '*') ++p;
      if (p == pat.size()) return true;
      for (size_t k = t; k <= text.size(); ++k)
        if (match_from(text, k, pat, p)) return true;
      return false;
    }
    if (t == text.size()) return false;
    char32_t tc = text[t];
    if (pc == '?') {
      ++p;
    } else if (pc == '#') {
      if (tc < '0' || tc > '9') return false;
      ++p;
    } else if (pc == '[') {
      ++p;
      if (!match_set(pat, p, tc)) return false;
    } else {
      if (pc != tc) return false;
      ++p;
    }
    ++t;
  }
  return t == text.size();
}

}  // namespace

int compare_text(std::string_view a, std::string_view b) {
  if (is_ascii(a) && is_ascii(b)) return compare_ascii(a, b);
  int primary = compare_by(a, b, primary_key);
  if (primary != 0) return primary;
  return compare_by(a, b, lower_case);
}

bool text_equal(std::string_view a, std::string_view b) { return compare_text(a, b) == 0; }

bool like_match(std::string_view text, std::string_view pattern) {
  return match_from(folded(text), 0, folded(pattern), 0);
}

}  // namespace mz::store
