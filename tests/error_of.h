#pragma once

#include <utility>

#include "runtime/error.h"

namespace qm::tests {

// The number of the error that an action ends with, 0 for none.
template <class Action>
int ErrorOf(Action&& action) {
  try {
    static_cast<void>(std::forward<Action>(action)());
  } catch (const runtime::RuntimeError& error) {
    return error.number();
  }
  return 0;
}

}  // namespace qm::tests
