#include "runtime/random.h"

#include <cstring>

namespace qm::runtime {
namespace {

constexpr std::uint32_t kMultiplier = 0x43FD43FD, kIncrement = 0xC39EC3, kModulusMask = 0xFFFFFF;

}  // namespace

float Random::Next() {
  state_ = (state_ * kMultiplier + kIncrement) & kModulusMask;
  return static_cast<float>(state_) / static_cast<float>(kModulusMask + 1);  // exact: 24 bits
}

void Random::Reseed(double seed) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &seed, sizeof bits);
  const auto high = static_cast<std::uint32_t>(bits >> 32);
  const std::uint32_t folded = (high ^ (high >> 16)) & 0xFFFF;
  state_ = (folded << 8) | (state_ & 0xFF);
}

}  // namespace qm::runtime
