#include "runtime/decimal.h"

#include <charconv>
#include <cmath>
#include <cstddef>

namespace qm::runtime {
namespace {

// Keeps the first "count" digits; a carry out of the first one adds a digit in front.
void RoundToDigits(Decimal& decimal, std::size_t count) {
  std::string& digits = decimal.digits;
  if (count < digits.size()) {
    bool carry = digits[count] >= '5';
    digits.resize(count);
    for (std::size_t at = count; carry && at-- > 0;) {
      carry = digits[at] == '9';
      digits[at] = carry ? '0' : static_cast<char>(digits[at] + 1);
    }
    if (carry) {
      digits.insert(digits.begin(), '1');
      ++decimal.power;
    }
  }
  digits.resize(digits.find_last_not_of('0') + 1);
}

}  // namespace

Decimal ToDecimal(double value, int significantDigits) {
  Decimal decimal{.negative = std::signbit(value) && value != 0};
  if (value == 0) return decimal;

  // to_chars rounds ties to even, so it gets room for every digit that could decide a tie.
  constexpr int kPlaces = 40;
  char buffer[kPlaces + 16];
  const char* const end =
      std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific, kPlaces)
          .ptr;
  const char* const fraction = buffer + 2;
  decimal.digits.assign(1, buffer[0]).append(fraction, kPlaces);
  const char* exponent = fraction + kPlaces + 1;
  if (*exponent == '+') ++exponent;
  std::from_chars(exponent, end, decimal.power);
  ++decimal.power;
  RoundToDigits(decimal, static_cast<std::size_t>(significantDigits));
  return decimal;
}

void RoundToPlaces(Decimal& decimal, int places) {
  const int count = decimal.power + places;
  if (count < 0) {
    decimal.digits.clear();
  } else {
    RoundToDigits(decimal, static_cast<std::size_t>(count));
  }
}

}  // namespace qm::runtime
