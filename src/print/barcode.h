#pragma once
// Code 39 symbols from zint, as bars that scale to any box: the labels carry
// the item code as a barcode that the shop's scanner types back as digits.
#include <string_view>
#include <vector>

namespace mz::print {

// One bar, in fractions of the symbol's width and height.
struct Bar {
  double x = 0, y = 0, width = 0, height = 0;
};

// The data of a code as the labels store it, "*000709*": without its start
// and stop characters.
std::string_view code39_data(std::string_view stored);

// The bars of `data` in Code 39, quiet zones included in the symbol's width.
// The data may carry its `*` start and stop characters, as the labels store
// it. Empty when there is nothing to encode or the data holds a character
// Code 39 lacks: the label then prints without its barcode.
std::vector<Bar> code39_bars(std::string_view data);

}  // namespace mz::print
