#pragma once
// Text functions that count characters, not bytes: text is UTF-8 inside the
// program, and accented letters are one character each.
#include <cstddef>
#include <string>
#include <string_view>

namespace mz {

inline bool is_digit(char c) { return c >= '0' && c <= '9'; }
// Blanks that number and date reading skip around a value.
inline bool is_blank(char c) { return c == ' ' || c == '\t'; }
std::string_view strip_blanks(std::string_view s);

size_t len(std::string_view s);
std::string left(std::string_view s, size_t n);
std::string right(std::string_view s, size_t n);
// Mid with a 1-based start; start past the end gives "", start 0 Error 5.
std::string mid(std::string_view s, size_t start);
std::string mid(std::string_view s, size_t start, size_t length);
// 1-based position of needle at or after start, 0 when absent; "" is found at start.
size_t instr(std::string_view haystack, std::string_view needle, size_t start = 1);
// One character of s at byte i, moving i past it (a stray byte is a
// Windows-1252 character of its own).
char32_t next_char(std::string_view s, size_t& i);
char32_t upper_case(char32_t c);
char32_t lower_case(char32_t c);
std::string ucase(std::string_view s);  // accented letters too: "ção" -> "ÇÃO"
std::string lcase(std::string_view s);
std::string trim(std::string_view s);   // blanks only, as the old runtime
std::string ltrim(std::string_view s);
std::string rtrim(std::string_view s);
std::string space(size_t n);
std::string replace_all(std::string_view s, std::string_view from, std::string_view to);

// One character as its code point, and back; Latin-1 code points equal the
// ANSI codes the system's rules speak of. Of "" it is Error 5, as Asc("").
char32_t first_char(std::string_view s);
std::string from_code_point(char32_t c);
// Splits into characters, each as its own UTF-8 text.
std::u32string to_u32(std::string_view s);
std::string to_utf8(std::u32string_view s);

// Text read from outside (files, arguments) that is not valid UTF-8 is taken
// as Windows-1252, as the old data was.
std::string ensure_utf8(std::string_view s);
// Bytes for a printer that reads the old code page; what it lacks becomes "?".
std::string to_windows_1252(std::string_view s);

}  // namespace mz
