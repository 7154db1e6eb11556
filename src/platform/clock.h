#pragma once
// The local time. Implemented by win32/clock and the tests' FixedClock.

#include "runtime/format.h"

namespace qm::platform {

class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual runtime::DateTime Now() = 0;
};

}  // namespace qm::platform
