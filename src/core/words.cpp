#include "core/words.h"

#include <stdexcept>

namespace mz {
namespace {

int hex_digit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  throw std::invalid_argument("bad \\x escape");
}

bool separates(char c) { return c == ' ' || c == '\t' || c == '\r'; }

}  // namespace

std::vector<Word> split_words(std::string_view line) {
  std::vector<Word> words;
  size_t i = 0;
  while (i < line.size()) {
    char c = line[i];
    if (separates(c)) {
      ++i;
    } else if (c == '#') {
      break;
    } else if (c == '"') {
      std::string text;
      for (++i;; ++i) {
        if (i >= line.size()) throw std::invalid_argument("unterminated text");
        if (line[i] == '"') break;
        if (line[i] != '\\') {
          text += line[i];
          continue;
        }
        if (++i >= line.size()) throw std::invalid_argument("unterminated text");
        char e = line[i];
        if (e == '"' || e == '\\') text += e;
        else if (e == 't') text += '\t';
        else if (e == 'x' && i + 2 < line.size()) {
          text += static_cast<char>(hex_digit(line[i + 1]) * 16 + hex_digit(line[i + 2]));
          i += 2;
        } else throw std::invalid_argument(std::string("bad escape \\") + e);
      }
      ++i;
      words.push_back({text, true});
    } else {
      size_t start = i;
      while (i < line.size() && !separates(line[i]) && line[i] != '#') ++i;
      words.push_back({std::string(line.substr(start, i - start)), false});
    }
  }
  return words;
}

}  // namespace mz
