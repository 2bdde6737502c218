#include "core/text.h"

#include <algorithm>

#include "core/error.h"

namespace mz {
namespace {

// Windows-1252 code points for the bytes 0x80..0x9F; the rest of the high
// half equals Latin-1. Unassigned bytes keep their own value.
constexpr char32_t kWindows1252High[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t from_windows_1252(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kWindows1252High[byte - 0x80] : byte;
}

bool is_continuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// Size in bytes of the valid UTF-8 character at s[i], or 0 when the byte
// there does not start one.
size_t utf8_size(std::string_view s, size_t i) {
  auto at = [&](size_t k) { return static_cast<unsigned char>(s[k]); };
  unsigned char lead = at(i);
  size_t size = lead < 0x80 ? 1 : lead >= 0xC2 && lead <= 0xDF ? 2 : lead >= 0xE0 && lead <= 0xEF ? 3
                : lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
  if (size == 0 || i + size > s.size()) return 0;
  for (size_t k = 1; k < size; ++k)
    if (!is_continuation(at(i + k))) return 0;
  if (size == 3 && lead == 0xE0 && at(i + 1) < 0xA0) return 0;   // overlong
  if (size == 3 && lead == 0xED && at(i + 1) >= 0xA0) return 0;  // surrogate
  if (size == 4 && lead == 0xF0 && at(i + 1) < 0x90) return 0;   // overlong
  if (size == 4 && lead == 0xF4 && at(i + 1) >= 0x90) return 0;  // past U+10FFFF
  return size;
}

// Bytes of the character at s[i]: a stray byte is a character of its own.
size_t char_size(std::string_view s, size_t i) { return std::max<size_t>(1, utf8_size(s, i)); }

char32_t decode_at(std::string_view s, size_t i) {
  size_t size = utf8_size(s, i);
  auto lead = static_cast<unsigned char>(s[i]);
  if (size == 0) return from_windows_1252(lead);
  if (size == 1) return lead;
  char32_t c = lead & (0xFF >> (size + 1));
  for (size_t k = 1; k < size; ++k) c = (c << 6) | (static_cast<unsigned char>(s[i + k]) & 0x3F);
  return c;
}

// Byte offset of the character with 0-based index n, or s.size() past the end.
size_t offset_of(std::string_view s, size_t n) {
  size_t i = 0;
  for (; i < s.size() && n > 0; --n) i += char_size(s, i);
  return std::min(i, s.size());
}

}  // namespace

// Upper and lower case as the shop's code page knows them.
char32_t upper_case(char32_t c) {
  if ((c >= U'a' && c <= U'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) return c - 0x20;
  switch (c) {
    case 0xFF: return 0x178;
    case 0x161: return 0x160;
    case 0x153: return 0x152;
    case 0x17E: return 0x17D;
    default: return c;
  }
}

char32_t lower_case(char32_t c) {
  if ((c >= U'A' && c <= U'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) return c + 0x20;
  switch (c) {
    case 0x178: return 0xFF;
    case 0x160: return 0x161;
    case 0x152: return 0x153;
    case 0x17D: return 0x17E;
    default: return c;
  }
}

char32_t next_char(std::string_view s, size_t& i) {
  char32_t c = decode_at(s, i);
  i += char_size(s, i);
  return c;
}

namespace {

template <typename Map>
std::string map_chars(std::string_view s, Map map) {
  std::u32string chars = to_u32(s);
  std::transform(chars.begin(), chars.end(), chars.begin(), map);
  return to_utf8(chars);
}

[[noreturn]] void invalid_call() {
  throw Error(err::kInvalidProcedureCall, "Invalid procedure call or argument");
}

}  // namespace

size_t len(std::string_view s) {
  size_t count = 0;
  for (size_t i = 0; i < s.size(); i += char_size(s, i)) ++count;
  return count;
}

std::string left(std::string_view s, size_t n) { return std::string(s.substr(0, offset_of(s, n))); }

std::string right(std::string_view s, size_t n) {
  size_t total = len(s);
  return std::string(s.substr(offset_of(s, total - std::min(n, total))));
}

std::string mid(std::string_view s, size_t start) {
  if (start < 1) invalid_call();
  return std::string(s.substr(offset_of(s, start - 1)));
}

std::string mid(std::string_view s, size_t start, size_t length) {
  if (start < 1) invalid_call();
  std::string_view rest = s.substr(offset_of(s, start - 1));
  return std::string(rest.substr(0, offset_of(rest, length)));
}

size_t instr(std::string_view haystack, std::string_view needle, size_t start) {
  if (start < 1) invalid_call();
  if (start - 1 > len(haystack)) return 0;
  size_t found = haystack.find(needle, offset_of(haystack, start - 1));
  if (found == std::string_view::npos) return 0;
  return len(haystack.substr(0, found)) + 1;
}

std::string ucase(std::string_view s) { return map_chars(s, upper_case); }
std::string lcase(std::string_view s) { return map_chars(s, lower_case); }

std::string ltrim(std::string_view s) {
  size_t first = s.find_first_not_of(' ');
  return first == std::string_view::npos ? "" : std::string(s.substr(first));
}

std::string rtrim(std::string_view s) {
  size_t last = s.find_last_not_of(' ');
  return last == std::string_view::npos ? "" : std::string(s.substr(0, last + 1));
}

std::string trim(std::string_view s) { return ltrim(rtrim(s)); }

std::string_view strip_blanks(std::string_view s) {
  size_t begin = 0, end = s.size();
  while (begin < end && is_blank(s[begin])) ++begin;
  while (end > begin && is_blank(s[end - 1])) --end;
  return s.substr(begin, end - begin);
}

std::string space(size_t n) { return std::string(n, ' '); }

std::string replace_all(std::string_view s, std::string_view from, std::string_view to) {
  if (from.empty()) return std::string(s);
  std::string result;
  size_t i = 0;
  for (size_t found; (found = s.find(from, i)) != std::string_view::npos; i = found + from.size()) {
    result.append(s.substr(i, found - i));
    result.append(to);
  }
  result.append(s.substr(i));
  return result;
}

char32_t first_char(std::string_view s) {
  if (s.empty()) invalid_call();
  return decode_at(s, 0);
}

std::string from_code_point(char32_t c) {
  std::string out;
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
  return out;
}

std::u32string to_u32(std::string_view s) {
  std::u32string chars;
  for (size_t i = 0; i < s.size(); i += char_size(s, i)) chars += decode_at(s, i);
  return chars;
}

std::string to_utf8(std::u32string_view s) {
  std::string out;
  for (char32_t c : s) out += from_code_point(c);
  return out;
}

std::string to_windows_1252(std::string_view s) {
  std::string out;
  for (size_t i = 0; i < s.size();) {
    char32_t c = next_char(s, i);
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
      out += static_cast<char>(c);
      continue;
    }
    char byte = '?';
    for (int k = 0; k < 32; ++k)
      if (kWindows1252High[k] == c) byte = static_cast<char>(0x80 + k);
    out += byte;
  }
  return out;
}

std::string ensure_utf8(std::string_view s) {
  for (size_t i = 0; i < s.size(); i += char_size(s, i)) {
    if (utf8_size(s, i) == 0) {
      std::string converted;
      for (unsigned char byte : s) converted += from_code_point(from_windows_1252(byte));
      return converted;
    }
  }
  return std::string(s);
}

}  // namespace mz
