#include "runtime/number_reader.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>
#include <utility>

namespace qm::runtime {
namespace {

bool IsBlank(char16_t letter) {
  return (letter >= u'\t' && letter <= u'\r') || letter == u' ' || letter == 0xA0 || letter == 0x1680 ||
         (letter >= 0x2000 && letter <= 0x200A) || letter == 0x2028 || letter == 0x2029 || letter == 0x202F ||
         letter == 0x205F || letter == 0x3000;
}

// prefix, mantissa or radix literal, exponent, suffix; signs, currency and parentheses may stand on
// either side, each at most once.
class Reader {
 public:
  Reader(std::u16string_view text, const Locale& locale) : rest_(text), locale_(locale) {}

  ReadNumber Read() {
    ReadPrefix();
    const bool radix = ReadRadixMark();
    const bool complete = radix ? ReadRadixDigits() : ReadMantissa() && ReadExponent();
    if (!complete || !ReadSuffix()) return {.error = ErrorNumber::TypeMismatch};

    const std::optional<double> size = radix ? bits_ : ToDouble(std::move(mantissa_), exponent_);
    if (!size) return {.error = ErrorNumber::Overflow};
    return {.value = negative_ ? -*size : *size, .radix = radix};
  }

 private:
  char16_t Next() const { return rest_.empty() ? u'\0' : rest_.front(); }

  bool Take(char16_t letter) {
    if (rest_.empty() || rest_.front() != letter) return false;
    rest_.remove_prefix(1);
    return true;
  }

  bool TakeOnce(char16_t letter, bool& seen) {
    if (seen || !Take(letter)) return false;
    return seen = true;
  }

  bool TakeBlank() {
    if (rest_.empty() || !IsBlank(rest_.front())) return false;
    rest_.remove_prefix(1);
    return true;
  }

  bool TakeCurrency() {
    if (currency_ || locale_.currency.empty() || !rest_.starts_with(locale_.currency)) return false;
    rest_.remove_prefix(locale_.currency.size());
    return currency_ = true;
  }

  void ReadPrefix() {
    while (TakeBlank() || TakeOnce(u'+', plus_) || TakeOnce(u'-', minus_) || TakeOnce(u'(', parenthesis_) ||
           TakeCurrency()) {
    }
  }

  bool ReadRadixMark() {
    if (rest_.size() < 2 || rest_[0] != u'&') return false;
    base_ = RadixOf(rest_[1]);
    if (base_ == 0) return false;
    rest_.remove_prefix(2);
    return true;
  }

  bool ReadRadixDigits() {
    if (RadixDigit(Next(), base_) < 0) return false;
    std::uint64_t bits = 0;
    const auto base = static_cast<unsigned>(base_);
    for (int digit = 0; (digit = RadixDigit(Next(), base_)) >= 0; rest_.remove_prefix(1)) {
      const bool fits = bits <= std::numeric_limits<std::uint64_t>::max() / base;
      if (!fits) bits_.reset();
      bits = bits * base + static_cast<unsigned>(digit);
    }
    if (bits_) bits_ = static_cast<double>(bits);
    return true;
  }

  // A grouping sign counts for nothing wherever it stands after the first digit or the decimal sign.
  bool ReadMantissa() {
    if (!IsDigit(Next()) && Next() != locale_.decimal) return false;
    bool digits = false;
    bool fraction = false;
    for (; !rest_.empty(); rest_.remove_prefix(1)) {
      const char16_t letter = rest_.front();
      if (IsDigit(letter)) {
        mantissa_ += static_cast<char>(letter);
        digits = true;
      } else if (letter == locale_.decimal && !fraction) {
        mantissa_ += '.';
        fraction = true;
      } else if (letter != locale_.grouping || letter == locale_.decimal) {
        break;
      }
    }
    return digits;
  }

  bool ReadExponent() {
    if (!IsExponentLetter(Next())) return true;
    rest_.remove_prefix(1);
    const bool negative = Take(u'-');
    if (!negative) Take(u'+');
    if (!IsDigit(Next())) return false;
    for (; IsDigit(Next()); rest_.remove_prefix(1)) {
      exponent_ = AppendExponentDigit(exponent_, Next() - u'0');
    }
    if (negative) exponent_ = -exponent_;
    return true;
  }

  bool ReadSuffix() {
    const bool signedBefore = minus_;
    const bool plusBefore = plus_;
    bool closed = false;
    while (TakeBlank() || (!plusBefore && TakeOnce(u'+', plus_)) ||
           (!signedBefore && TakeOnce(u'-', minus_)) || (parenthesis_ && TakeOnce(u')', closed)) ||
           TakeCurrency()) {
    }
    negative_ = minus_ || closed;
    return rest_.empty() && closed == parenthesis_ && !(currency_ && base_ != 0);
  }

  std::u16string_view rest_;
  const Locale& locale_;
  bool plus_ = false, minus_ = false, parenthesis_ = false, currency_ = false;
  bool negative_ = false;
  int base_ = 0;
  std::optional<double> bits_ = 0.0;
  std::string mantissa_;
  int exponent_ = 0;
};

// About the power of ten of a mantissa other than 0: enough to tell which end of the range was passed.
long long LeadingPower(std::string_view mantissa) {
  const std::size_t whole = std::min(mantissa.find('.'), mantissa.size());
  return static_cast<long long>(whole) - static_cast<long long>(mantissa.find_first_of("123456789"));
}

}  // namespace

std::optional<double> ToDouble(std::string mantissa, int exponent) {
  if (mantissa.find_first_of("123456789") == std::string::npos) return 0;
  const long long power = LeadingPower(mantissa) + exponent;
  if (exponent != 0) mantissa.append("e").append(std::to_string(exponent));
  double value = 0;
  const auto [end, error] = std::from_chars(mantissa.data(), mantissa.data() + mantissa.size(), value);
  // from_chars says "out of range" for both ends, and which value it leaves differs between libraries.
  const bool outOfRange = error == std::errc::result_out_of_range;
  if (power > 0 && (outOfRange || value > std::numeric_limits<double>::max())) return std::nullopt;
  return outOfRange ? 0.0 : value;
}

ReadNumber ReadWholeText(std::u16string_view text, const Locale& locale) {
  if (const auto plain = PlainDigits(text)) return {.value = static_cast<double>(*plain)};
  return Reader(text, locale).Read();
}

}  // namespace qm::runtime
