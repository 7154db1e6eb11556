#include "tests/runtime/generated_texts.h"

#include <cmath>
#include <cstring>
#include <iterator>
#include <string_view>

namespace qm::test {
namespace {

constexpr std::u16string_view kBefore[] = {u"",  u"",   u"",  u"",  u" ", u"-",
                                           u"+", u"- ", u"(", u"€", u"$", u"\t"};
constexpr std::u16string_view kAfter[] = {u"", u"", u"", u"", u" ", u"-", u")", u" €", u"$", u"%", u"\u00A0"};
constexpr std::u16string_view kSeparators = u",.,.,.,.,.'";
constexpr std::u16string_view kExponents[] = {u"e", u"E", u"e-", u"E+", u"d"};
constexpr std::u16string_view kSigns =
    u"0123456789012345678901234567890123456789,,,...--+ ()€$%eEdD&HhOoaAfF#'\t\n\r\u00A0\u202F\u3000xñ５";

}  // namespace

std::u16string Generator::Digits(int most) {
  std::u16string digits;
  for (int left = Below(most + 1); left > 0; --left) digits += static_cast<char16_t>(u'0' + Below(10));
  return digits;
}

std::u16string Generator::NumberText() {
  const auto oneOf = [this](const auto& choices) {
    return choices[Below(static_cast<int>(std::size(choices)))];
  };
  std::u16string text(oneOf(kBefore));
  if (Below(12) == 0) {
    text += Below(3) == 0 ? u"&O" : u"&H";
    for (int left = Below(6); left > 0; --left) text += u"0123456789ABCDEFabcdef"[Below(22)];
  } else {
    text += Digits(Below(8) == 0 ? 20 : 5);
    for (int left = Below(4); left > 0; --left) (text += oneOf(kSeparators)) += Digits(4);
    if (Below(6) == 0) (text += oneOf(kExponents)) += Digits(Below(4) == 0 ? 3 : 1);
  }
  return text += oneOf(kAfter);
}

std::u16string Generator::AnyText() {
  std::u16string text;
  for (int left = Below(9); left > 0; --left)
    text += kSigns[static_cast<std::size_t>(Below(static_cast<int>(kSigns.size())))];
  return text;
}

double Generator::Amount() {
  double value = 0;
  for (int left = 1 + Below(12); left > 0; --left) value = value * 10 + Below(10);
  if (Below(3) == 0) value = value * 10 + 5;
  value /= std::pow(10.0, Below(9));
  return Below(2) == 0 ? value : -value;
}

double Generator::AnyDouble() {
  double value = 0;
  do {
    const std::uint64_t bits = engine_();
    std::memcpy(&value, &bits, sizeof value);
  } while (!std::isfinite(value));
  return value;
}

}  // namespace qm::test
