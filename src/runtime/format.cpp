#include "runtime/format.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "runtime/decimal.h"
#include "runtime/numbers.h"

namespace qm::runtime {
namespace {

constexpr int kFloatDigits = 7, kDoubleDigits = 15;

void AppendDigits(std::u16string& text, const std::string& digits) {
  text.append(digits.begin(), digits.end());
}

void AppendNumber(std::u16string& text, int number, std::size_t width) {
  const std::string digits = std::to_string(number);
  if (digits.size() < width) text.append(width - digits.size(), u'0');
  AppendDigits(text, digits);
}

std::u16string NotFinite(double value, const Locale& locale) {
  std::u16string text = std::signbit(value) ? u"-1" : u"1";
  return (text += locale.decimal) += std::isnan(value) ? u"#IND" : u"#INF";
}

// d,ddddE+xx
std::u16string ExponentForm(const Decimal& decimal, const Locale& locale) {
  std::u16string text(1, static_cast<char16_t>(decimal.digits.front()));
  if (decimal.digits.size() > 1) {
    text += locale.decimal;
    AppendDigits(text, decimal.digits.substr(1));
  }
  const int exponent = decimal.power - 1;
  text += exponent < 0 ? u"E-" : u"E+";
  AppendNumber(text, std::abs(exponent), 2);
  return text;
}

std::u16string PlainForm(const Decimal& decimal, const Locale& locale) {
  const auto count = static_cast<int>(decimal.digits.size());
  std::u16string text;
  if (decimal.power <= 0) {
    ((text += u'0') += locale.decimal).append(static_cast<std::size_t>(-decimal.power), u'0');
    AppendDigits(text, decimal.digits);
  } else if (decimal.power >= count) {
    AppendDigits(text, decimal.digits);
    text.append(static_cast<std::size_t>(decimal.power - count), u'0');
  } else {
    const auto whole = static_cast<std::size_t>(decimal.power);
    AppendDigits(text, decimal.digits.substr(0, whole));
    text += locale.decimal;
    AppendDigits(text, decimal.digits.substr(whole));
  }
  return text;
}

std::u16string ToText(double value, int significantDigits, const Locale& locale) {
  constexpr int kSmallestPlainPower = -3;  // 0,0001
  if (!std::isfinite(value)) return NotFinite(value, locale);
  const Decimal decimal = ToDecimal(value, significantDigits);
  if (decimal.digits.empty()) return u"0";
  const bool plain = decimal.power >= kSmallestPlainPower && decimal.power <= significantDigits;
  const std::u16string size = plain ? PlainForm(decimal, locale) : ExponentForm(decimal, locale);
  return decimal.negative ? u"-" + size : size;
}

struct NumberMask {
  std::u16string_view before, after;  // literal text around the placeholders
  int leastWhole = 0;                 // digits forced before the decimal sign
  int leastPlaces = 0, mostPlaces = 0;
  bool grouped = false;
  bool decimalSign = false;
};

NumberMask ReadMask(std::u16string_view mask) {
  NumberMask read;
  const std::size_t first = std::min(mask.find_first_of(u"#0."), mask.size());
  const std::size_t end = std::max(mask.find_last_of(u"#0.,") + 1, first);
  read.before = mask.substr(0, first);
  read.after = mask.substr(end);
  bool pendingGroup = false;
  for (const char16_t letter : mask.substr(first, end - first)) {
    if (letter == u'.') read.decimalSign = true;
    if (letter == u',') pendingGroup = !read.decimalSign;
    if (letter != u'#' && letter != u'0') continue;
    if (read.decimalSign) {
      ++read.mostPlaces;
      if (letter == u'0') read.leastPlaces = read.mostPlaces;
    } else {
      read.grouped = read.grouped || pendingGroup;
      if (letter == u'0' || read.leastWhole > 0) ++read.leastWhole;
    }
  }
  return read;
}

void AppendWhole(std::u16string& text, const Decimal& decimal, const NumberMask& mask, char16_t grouping) {
  const auto count = static_cast<int>(decimal.digits.size());
  const int places = std::max(decimal.power, mask.leastWhole);
  for (int left = places; left > 0; --left) {
    const int at = decimal.power - left;  // before the first digit and after the last stand zeros
    text +=
        at >= 0 && at < count ? static_cast<char16_t>(decimal.digits[static_cast<std::size_t>(at)]) : u'0';
    if (mask.grouped && left > 1 && left % 3 == 1) text += grouping;
  }
}

void AppendPlaces(std::u16string& text, const Decimal& decimal, const NumberMask& mask) {
  const auto count = static_cast<int>(decimal.digits.size());
  const int places = std::max(mask.leastPlaces, count - decimal.power);
  for (int place = 0; place < places; ++place) {
    const int at = decimal.power + place;
    text +=
        at >= 0 && at < count ? static_cast<char16_t>(decimal.digits[static_cast<std::size_t>(at)]) : u'0';
  }
}

}  // namespace

std::u16string ToText(float value, const Locale& locale) {
  return ToText(static_cast<double>(value), kFloatDigits, locale);
}

std::u16string ToText(double value, const Locale& locale) { return ToText(value, kDoubleDigits, locale); }

std::u16string ToText(std::int32_t value) {
  std::u16string text;
  AppendDigits(text, std::to_string(value));
  return text;
}

std::u16string ToText(bool value, const Locale& locale) { return value ? locale.trueWord : locale.falseWord; }

std::u16string Format(double value, std::u16string_view mask, const Locale& locale) {
  if (mask.empty() || !std::isfinite(value)) return ToText(value, locale);
  const NumberMask read = ReadMask(mask);
  Decimal decimal = ToDecimal(value, kDoubleDigits);
  RoundToPlaces(decimal, read.mostPlaces);

  std::u16string text;
  if (decimal.negative) text += u'-';  // also in front of what rounds to 0
  text += read.before;
  if (decimal.digits.empty()) decimal.power = 0;
  AppendWhole(text, decimal, read, locale.grouping);
  if (read.decimalSign) text += locale.decimal;
  AppendPlaces(text, decimal, read);
  return text += read.after;
}

std::u16string Format(std::u16string_view text, std::u16string_view mask, const Locale& locale) {
  const std::optional<double> number = TryCDbl(text, locale);
  return number ? Format(*number, mask, locale) : std::u16string(text);
}

}  // namespace qm::runtime
