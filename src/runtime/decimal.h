#pragma once
// A number as a short row of decimal digits, the form in which the runtime rounds and prints.

#include <string>

namespace qm::runtime {

struct Decimal {
  bool negative = false;
  std::string digits = {};  // no leading zeros, no trailing zeros; empty for 0
  int power = 0;            // the value is 0.DIGITS * 10^power
};

// The finite value with so many significant digits, ties of the exact binary value away from zero.
[[nodiscard]] Decimal ToDecimal(double value, int significantDigits);

// Drops the digits beyond so many places after the decimal sign, ties away from zero.
void RoundToPlaces(Decimal& decimal, int places);

}  // namespace qm::runtime
