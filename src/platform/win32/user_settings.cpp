#include "platform/win32/user_settings.h"

#include "platform/win32/wide.h"

#include <oleauto.h>

#include <iterator>

namespace qm::platform::win32 {
namespace {

std::u16string Setting(LCTYPE kind) {
  wchar_t text[80] = L"";
  const int length = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, kind, text, static_cast<int>(std::size(text)));
  return length > 1 ? Text(text) : std::u16string();
}

// The word that the automation library writes for a Boolean.
std::u16string BooleanWord(bool value, std::u16string fallback) {
  VARIANT boolean;
  VariantInit(&boolean);
  boolean.vt = VT_BOOL;
  boolean.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  VARIANT word;
  VariantInit(&word);
  if (FAILED(VariantChangeTypeEx(&word, &boolean, GetUserDefaultLCID(), VARIANT_LOCALBOOL, VT_BSTR)))
    return fallback;
  std::u16string text = Text(word.bstrVal, SysStringLen(word.bstrVal));
  VariantClear(&word);
  return text;
}

}  // namespace

runtime::Locale UserLocale() {
  runtime::Locale locale;
  // The value rules know separators of one character; a longer setting counts by its first.
  if (const std::u16string decimal = Setting(LOCALE_SDECIMAL); !decimal.empty()) locale.decimal = decimal[0];
  if (const std::u16string grouping = Setting(LOCALE_STHOUSAND); !grouping.empty())
    locale.grouping = grouping[0];
  if (std::u16string currency = Setting(LOCALE_SCURRENCY); !currency.empty())
    locale.currency = std::move(currency);
  locale.trueWord = BooleanWord(true, locale.trueWord);
  locale.falseWord = BooleanWord(false, locale.falseWord);
  return locale;
}

runtime::DateTime Win32Clock::Now() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

}  // namespace qm::platform::win32
