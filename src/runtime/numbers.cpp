#include "runtime/numbers.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>

#include "runtime/error.h"
#include "runtime/number_reader.h"
#include "runtime/strings.h"

namespace qm::runtime {
namespace {

// The number at the start of a text from which blanks were taken out.
class PrefixReader {
 public:
  explicit PrefixReader(std::u16string_view text) : text_(text) {}

  double Read() {
    const bool negative = Next() == u'-';
    if (negative || Next() == u'+') ++at_;
    const int radix = Next() == u'&' ? RadixOf(Next(1)) : 0;
    const double size = radix != 0 ? ReadRadix(radix) : ReadDecimal();
    return negative && size != 0 ? -size : size;
  }

 private:
  char16_t Next(std::size_t ahead = 0) const {
    return at_ + ahead < text_.size() ? text_[at_ + ahead] : u'\0';
  }

  // Up to 16 bits a literal is a 16-bit integer, so &HFFFF is -1, unless it ends in "&"; above, a 32-bit one.
  double ReadRadix(int radix) {
    at_ += 2;
    std::uint64_t bits = 0;
    for (int digit = 0; (digit = RadixDigit(Next(), radix)) >= 0; ++at_) {
      bits = bits * static_cast<unsigned>(radix) + static_cast<unsigned>(digit);
      if (bits > std::numeric_limits<std::uint32_t>::max()) throw RuntimeError(ErrorNumber::Overflow);
    }
    const bool narrow = bits <= std::numeric_limits<std::uint16_t>::max() && Next() != u'&';
    return narrow ? static_cast<std::int16_t>(bits) : static_cast<std::int32_t>(bits);
  }

  double ReadDecimal() {
    std::string mantissa;
    bool digits = false;
    for (bool fraction = false; IsDigit(Next()) || (Next() == u'.' && !fraction); ++at_) {
      (Next() == u'.' ? fraction : digits) = true;
      mantissa += static_cast<char>(Next());
    }
    if (!digits) return 0;
    const std::optional<double> value = ToDouble(std::move(mantissa), ReadExponent());
    if (!value) throw RuntimeError(ErrorNumber::Overflow);
    return *value;
  }

  // Without a digit after it the letter is not an exponent.
  int ReadExponent() {
    if (!IsExponentLetter(Next())) return 0;
    const bool negative = Next(1) == u'-';
    const std::size_t sign = negative || Next(1) == u'+' ? 1 : 0;
    int exponent = 0;
    for (at_ += 1 + sign; IsDigit(Next()); ++at_) {
      exponent = AppendExponentDigit(exponent, Next() - u'0');
    }
    return negative ? -exponent : exponent;
  }

  std::u16string_view text_;
  std::size_t at_ = 0;
};

template <typename Integer>
Integer ToInteger(double value) {
  const double rounded = std::nearbyint(value);  // half to even: nobody changes the rounding mode here
  if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  return static_cast<Integer>(rounded);
}

ReadNumber ReadOrThrow(std::u16string_view text, const Locale& locale) {
  const ReadNumber number = ReadWholeText(text, locale);
  if (number.error) throw RuntimeError(*number.error);
  return number;
}

// A radix literal of the integer's width is its bit pattern: &HFFFF is -1 in 16 bits.
template <typename Integer>
Integer ToInteger(std::u16string_view text, const Locale& locale) {
  const ReadNumber number = ReadOrThrow(text, locale);
  using Bits = std::make_unsigned_t<Integer>;
  if (number.radix && number.value >= 0 && number.value <= std::numeric_limits<Bits>::max()) {
    return static_cast<Integer>(static_cast<Bits>(number.value));
  }
  return ToInteger<Integer>(number.value);
}

}  // namespace

double Val(std::u16string_view text) {
  const auto isDropped = [](char16_t letter) { return letter == u' ' || letter == u'\t' || letter == u'\n'; };
  if (const auto plain = PlainDigits(text)) return *plain;
  std::u16string packed(text);
  std::erase_if(packed, isDropped);
  return PrefixReader(packed).Read();
}

double CDbl(std::u16string_view text, const Locale& locale) { return ReadOrThrow(text, locale).value; }

std::optional<double> TryCDbl(std::u16string_view text, const Locale& locale) {
  const ReadNumber number = ReadWholeText(text, locale);
  return number.error ? std::nullopt : std::optional(number.value);
}

std::int16_t CInt(std::u16string_view text, const Locale& locale) {
  return ToInteger<std::int16_t>(text, locale);
}

std::int32_t CLng(std::u16string_view text, const Locale& locale) {
  return ToInteger<std::int32_t>(text, locale);
}

std::int16_t CInt(double value) { return ToInteger<std::int16_t>(value); }

std::int32_t CLng(double value) { return ToInteger<std::int32_t>(value); }

bool CBool(std::u16string_view text, const Locale& locale) {
  if (text == u"#TRUE#" || EqualFolded(text, locale.trueWord) || EqualFolded(text, u"True")) return true;
  if (text == u"#FALSE#" || EqualFolded(text, locale.falseWord) || EqualFolded(text, u"False")) return false;
  return CDbl(text, locale) != 0;
}

}  // namespace qm::runtime
