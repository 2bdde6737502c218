#pragma once
// One line of a text the program reads (screen scripts, report templates)
// split into words: blanks separate them, double quotes hold text with blanks
// and the escapes \" \\ \t \xHH, and # starts a comment.
#include <string>
#include <string_view>
#include <vector>

namespace mz {

struct Word {
  std::string text;
  bool quoted = false;
};

// Throws std::invalid_argument on an open quote or a bad escape.
std::vector<Word> split_words(std::string_view line);

}  // namespace mz
