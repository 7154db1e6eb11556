#pragma once

#include "platform/clock.h"

namespace qm::fakes {

class FixedClock : public platform::Clock {
 public:
  explicit FixedClock(runtime::DateTime now = {2015, 12, 31, 15, 7, 0}) : now_(now) {}
  [[nodiscard]] runtime::DateTime Now() override { return now_; }

 private:
  runtime::DateTime now_;
};

}  // namespace qm::fakes
