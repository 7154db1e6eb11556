// The number readers and writers on any bytes. Input: one byte that chooses the locale, then UTF-8; its
// first eight bytes serve as a double, too, and its second line as a mask.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/format.h"
#include "runtime/numbers.h"

namespace {

using namespace qm::runtime;  // NOLINT(google-build-using-namespace): a test of that namespace

void Require(bool holds) {
  if (!holds) std::abort();
}

// The answer, or nothing where it raises one of the two errors that readers may raise.
template <typename Action>
auto Answer(Action&& action) -> std::optional<decltype(action())> {
  try {
    return action();
  } catch (const RuntimeError& error) {
    Require(error.Is(ErrorNumber::TypeMismatch) || error.Is(ErrorNumber::Overflow));
    return std::nullopt;
  }
}

bool IsPlainDigits(std::u16string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(),
                                      [](char16_t letter) { return letter >= u'0' && letter <= u'9'; });
}

void CheckReaders(std::u16string_view text, const Locale& locale) {
  const auto number = Answer([&] { return CDbl(text, locale); });
  Require(TryCDbl(text, locale) == number);
  if (number) {
    Require(std::isfinite(*number));
    Require(Answer([&] { return CBool(text, locale); }) == (*number != 0));
  }
  const auto shortInteger = Answer([&] { return CInt(text, locale); });
  const auto longInteger = Answer([&] { return CLng(text, locale); });
  if (text.find(u'&') == std::u16string_view::npos) {
    Require(shortInteger == (number ? Answer([&] { return CInt(*number); }) : std::nullopt));
    Require(longInteger == (number ? Answer([&] { return CLng(*number); }) : std::nullopt));
  }

  const auto leading = Answer([&] { return Val(text); });
  if (leading) Require(std::isfinite(*leading));
  if (IsPlainDigits(text)) Require(leading == number);
}

void CheckTexts(std::u16string_view text, std::u16string_view mask, const Locale& locale) {
  if (!TryCDbl(text, locale)) Require(Format(text, mask, locale) == text);
  const DateTime moment{2015, 12, 31, 15, 7, 9};
  static_cast<void>(Format(moment, mask));
}

void CheckWriters(double value, std::u16string_view mask, const Locale& locale) {
  static_cast<void>(Format(value, mask, locale));
  const std::u16string text = ToText(value, locale);
  if (!std::isfinite(value)) return;
  const auto back = TryCDbl(text, locale);  // 15 digits of the largest doubles may be too large
  if (back) {
    Require(std::fabs(*back - value) <= std::fabs(value) * 1e-14 + 1e-320);
    Require(std::fabs(value) < 1e-300 || ToText(*back, locale) == text);
  }
  const auto amount = TryCDbl(Format(value, u"###,###,##0.00", locale), locale);
  if (amount) Require(std::fabs(*amount - value) <= 0.0050001 + std::fabs(value) * 1e-14);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const Locale locale = data[0] % 2 == 0 ? Locale::Spanish() : Locale::English();
  const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  Require(ToBytes(FromBytes(bytes)) == bytes);

  const std::u16string text = FromUtf8(bytes);
  Require(FromUtf8(ToUtf8(text)) == text);
  const std::size_t line = std::min(text.find(u'\n'), text.size());
  const std::u16string_view mask = std::u16string_view(text).substr(line == text.size() ? line : line + 1);
  CheckReaders(text, locale);
  CheckReaders(std::u16string_view(text).substr(0, line), locale);
  CheckTexts(std::u16string_view(text).substr(0, line), mask, locale);

  double value = TryCDbl(std::u16string_view(text).substr(0, line), locale).value_or(0);
  CheckWriters(value, mask, locale);
  if (bytes.size() >= sizeof value) {
    std::memcpy(&value, bytes.data(), sizeof value);
    CheckWriters(value, mask, locale);
  }
  return 0;
}
