#pragma once
// Seeded inputs for the value rules: texts that are numbers, nearly numbers or nothing of the kind.

#include <cstdint>
#include <random>
#include <string>

namespace qm::test {

class Generator {
 public:
  explicit Generator(std::uint64_t seed) : engine_(seed) {}

  std::u16string NumberText();  // digits, separators, signs, exponents, currency in nearly sensible order
  std::u16string AnyText();     // the same signs in any order, and others
  double Amount();              // up to 15 digits, most with few places, many on a rounding tie
  double AnyDouble();           // any bits that are a finite number
  int Below(int limit) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(limit)); }

 private:
  std::u16string Digits(int most);

  std::mt19937_64 engine_;
};

}  // namespace qm::test
