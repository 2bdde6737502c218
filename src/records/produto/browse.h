#pragma once
// The browse buttons of PRODUTO: first, previous, next and last reference
// in code order.
#include "ui/runtime.h"

namespace mz::records::produto {

enum class Step { First, Previous, Next, Last };

// Brings the reference one step away onto the card. Next and previous move
// from the code on screen only when that code is on file.
void browse(ui::Form& f, Step step);

}  // namespace mz::records::produto
