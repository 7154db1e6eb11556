#include <algorithm>

#include "print/text/text_helpers.h"
#include "runtime/error.h"
#include "runtime/format.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"

namespace qm::text {
namespace {

// The bitwise "and" of the two positions decides, not their both being there: "1,5.0" (2 and 4) is read up to
// its comma while "1.234,5" (6 and 2) is a number with thousands.
bool MixesSeparators(std::u16string_view text) {
  return (runtime::InStr(text, u",") & runtime::InStr(text, u".")) != 0;
}

double ParseTrimmed(std::u16string_view text, const runtime::Locale& locale) {
  const bool hasPoint = text.find(u'.') != std::u16string_view::npos;
  return hasPoint && !MixesSeparators(text) ? runtime::Val(text) : runtime::CDbl(text, locale);
}

}  // namespace

double ParseNumber(std::u16string_view text, const runtime::Locale& locale) {
  const std::u16string_view trimmed = runtime::Trim(text);
  if (trimmed.empty()) return 0;
  try {
    return ParseTrimmed(trimmed, locale);
  } catch (const runtime::RuntimeError&) {
    return 0;
  }
}

double ParseCentimetres(std::u16string_view text, const runtime::Locale& locale) {
  const bool loneComma =
      std::count(text.begin(), text.end(), u',') == 1 && text.find(u'.') == std::u16string_view::npos;
  if (!loneComma) return ParseNumber(text, locale);
  runtime::Locale commaLocale = locale;
  commaLocale.decimal = u',';
  commaLocale.grouping = u'.';
  return ParseNumber(text, commaLocale);
}

bool ParseBoolean(std::u16string_view text, const runtime::Locale& locale) {
  try {
    return runtime::CBool(text, locale);
  } catch (const runtime::RuntimeError&) {
    return runtime::EqualFolded(text, u"TRUE") || runtime::EqualFolded(text, u"VERDADERO");
  }
}

std::u16string FormatNonZero(double value, std::u16string_view mask, const runtime::Locale& locale) {
  return value == 0 ? std::u16string() : runtime::Format(value, mask, locale);
}

}  // namespace qm::text
