#pragma once
// How the shop's text compares: case never matters, accents do, and an
// accented letter sorts beside its plain letter ("álvaro" among the A's).
#include <string_view>

namespace mz::store {

// <0, 0, >0 like strcmp.
int compare_text(std::string_view a, std::string_view b);
bool text_equal(std::string_view a, std::string_view b);

// The old engine's Like: * any run, ? one character, # one digit,
// [abc], [a-z] and [!abc] one character of (or not of) a set; the same
// case rule as compare_text.
bool like_match(std::string_view text, std::string_view pattern);

}  // namespace mz::store
