#pragma once
// The runtime's pseudo-random generator: a 24-bit linear congruential one.

#include <cstdint>

namespace qm::runtime {

class Random {
 public:
  [[nodiscard]] float Next();  // in [0, 1)
  void Reseed(double seed);    // replaces the upper 16 bits of the state, as the runtime does

 private:
  std::uint32_t state_ = 0x50000;
};

}  // namespace qm::runtime
