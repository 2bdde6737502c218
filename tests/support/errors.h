#pragma once
#include <functional>

#include "core/error.h"

namespace mz::testing {

// The number of the Error an action raises, or 0 when it raises none.
inline int error_number(const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& e) {
    return e.number();
  }
  return 0;
}

}  // namespace mz::testing
