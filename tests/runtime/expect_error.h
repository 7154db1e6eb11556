#pragma once
// The number of the RuntimeError that an action raises; 0 where it raises none.

#include "runtime/error.h"

namespace qm::test {

template <typename Action>
[[nodiscard]] int RaisedBy(Action&& action) {
  try {
    static_cast<void>(action());
  } catch (const runtime::RuntimeError& error) {
    return error.number();
  }
  return 0;
}

}  // namespace qm::test
