#include "print/page.h"

#include <algorithm>
#include <cmath>

namespace mz::print {

std::vector<std::string> page_text(const Page& page) {
  std::vector<const TextItem*> texts;
  for (const Item& item : page.items)
    if (const auto* t = std::get_if<TextItem>(&item)) texts.push_back(t);
  // Pieces whose tops lie within half a millimetre share a line.
  auto row = [](const TextItem* t) { return std::lround(t->y * 2); };
  std::stable_sort(texts.begin(), texts.end(), [&](const TextItem* a, const TextItem* b) {
    return row(a) != row(b) ? row(a) < row(b) : a->x < b->x;
  });
  std::vector<std::string> lines;
  long current = 0;
  for (const TextItem* t : texts) {
    if (lines.empty() || row(t) != current) lines.emplace_back();
    else lines.back() += ' ';
    lines.back() += t->text;
    current = row(t);
  }
  return lines;
}

}  // namespace mz::print
