#pragma once
// The reader of number texts below CDbl, CInt, CLng and CBool: one pass, no exceptions, no process locale.

#include <optional>
#include <string>
#include <string_view>

#include "runtime/error.h"
#include "runtime/locale.h"

namespace qm::runtime {

struct ReadNumber {
  std::optional<ErrorNumber> error = std::nullopt;  // TypeMismatch or Overflow; value is then 0
  double value = 0;
  bool radix = false;  // a &H or &O literal, which a narrow integer takes as its bit pattern
};

// The whole text as a number in the locale.
[[nodiscard]] ReadNumber ReadWholeText(std::u16string_view text, const Locale& locale);

// "mantissa" is plain digits with at most one dot. Nothing where mantissa * 10^exponent is too large for a
// double; too small gives 0.
[[nodiscard]] std::optional<double> ToDouble(std::string mantissa, int exponent);

[[nodiscard]] constexpr bool IsDigit(char16_t letter) { return letter >= u'0' && letter <= u'9'; }

// A text of digits alone, as most numbers of a print model are: nothing for more than nine of them.
[[nodiscard]] constexpr std::optional<int> PlainDigits(std::u16string_view text) {
  if (text.empty() || text.size() > 9) return std::nullopt;
  int value = 0;
  for (const char16_t letter : text) {
    if (!IsDigit(letter)) return std::nullopt;
    value = value * 10 + (letter - u'0');
  }
  return value;
}

// Adds a digit to an exponent, stopping short of overflow: anything beyond is out of range for a double.
[[nodiscard]] constexpr int AppendExponentDigit(int exponent, int digit) {
  constexpr int kBeyondAnyDouble = 100'000'000;
  return exponent < kBeyondAnyDouble ? exponent * 10 + digit : exponent;
}

// The value of a digit of the radix (8 or 16), or -1.
[[nodiscard]] constexpr int RadixDigit(char16_t letter, int radix) {
  int digit = -1;
  if (letter >= u'0' && letter <= u'9') digit = letter - u'0';
  if (letter >= u'a' && letter <= u'f') digit = letter - u'a' + 10;
  if (letter >= u'A' && letter <= u'F') digit = letter - u'A' + 10;
  return digit < radix ? digit : -1;
}

// The radix of the letter after "&": 16 for H, 8 for O, else 0.
[[nodiscard]] constexpr int RadixOf(char16_t letter) {
  if (letter == u'H' || letter == u'h') return 16;
  if (letter == u'O' || letter == u'o') return 8;
  return 0;
}

[[nodiscard]] constexpr bool IsExponentLetter(char16_t letter) {
  return letter == u'e' || letter == u'E' || letter == u'd' || letter == u'D';
}

}  // namespace qm::runtime
