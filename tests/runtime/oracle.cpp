#include "tests/runtime/oracle.h"

#include <windows.h>  // before oleauto.h

#include <oleauto.h>

#include <vector>

#include "runtime/code_page.h"
#include "tests/runtime/vectors.h"

namespace qm::test::oracle {
namespace {

constexpr LCID kSpanish = 0x0C0A, kEnglish = 0x0409;
constexpr UINT kWindows1252 = 1252;

LCID LcidOf(const runtime::Locale& locale) { return locale.decimal == u',' ? kSpanish : kEnglish; }

std::string ErrorNotation(HRESULT result) {
  switch (result) {
    case DISP_E_TYPEMISMATCH:
      return "ERR13";
    case DISP_E_OVERFLOW:
      return "ERR6";
    default:
      return "HRESULT " + std::to_string(result);
  }
}

// Terminated, as the library reads it.
std::vector<OLECHAR> Terminated(std::u16string_view text) {
  std::vector<OLECHAR> letters(text.begin(), text.end());
  letters.push_back(L'\0');
  return letters;
}

class Variant {
 public:
  Variant() { VariantInit(&value_); }
  ~Variant() { VariantClear(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  VARIANT* operator->() { return &value_; }
  VARIANT* get() { return &value_; }

 private:
  VARIANT value_;
};

std::string TakeText(BSTR text) {
  const auto* const letters = reinterpret_cast<const char16_t*>(text);
  const std::string bytes = runtime::ToUtf8({letters, SysStringLen(text)});
  SysFreeString(text);
  return bytes;
}

std::string PlainText(Variant& value, const runtime::Locale& locale) {
  const HRESULT result =
      VariantChangeTypeEx(value.get(), value.get(), LcidOf(locale), VARIANT_LOCALBOOL, VT_BSTR);
  if (FAILED(result)) return ErrorNotation(result);
  const BSTR text = value->bstrVal;
  value->vt = VT_EMPTY;
  return TakeText(text);
}

// VarFormat itself knows only the user's locale; its two halves take any.
std::string Formatted(Variant& value, std::u16string_view mask, LCID lcid) {
  BYTE tokens[512];
  int used = 0;
  std::vector<OLECHAR> letters = Terminated(mask);
  HRESULT result = VarTokenizeFormatString(letters.data(), tokens, sizeof tokens, 0, 0, lcid, &used);
  if (FAILED(result)) return ErrorNotation(result);
  BSTR text = nullptr;
  result = VarFormatFromTokens(value.get(), letters.data(), tokens, 0, &text, lcid);
  return FAILED(result) ? ErrorNotation(result) : TakeText(text);
}

// Calls a Var…FromStr or Var…FromR8 function and notes its answer.
template <typename Value, typename Function, typename... Arguments>
std::string Called(Function function, Arguments... arguments) {
  Value value{};
  const HRESULT result = function(arguments..., &value);
  if (FAILED(result)) return ErrorNotation(result);
  if constexpr (std::is_same_v<Value, double>) {
    return Notation(value);
  } else {
    return std::to_string(value);
  }
}

}  // namespace

std::string CDbl(std::u16string_view text, const runtime::Locale& locale) {
  return Called<double>(VarR8FromStr, Terminated(text).data(), LcidOf(locale), 0UL);
}

std::string CInt(std::u16string_view text, const runtime::Locale& locale) {
  return Called<SHORT>(VarI2FromStr, Terminated(text).data(), LcidOf(locale), 0UL);
}

std::string CLng(std::u16string_view text, const runtime::Locale& locale) {
  return Called<LONG>(VarI4FromStr, Terminated(text).data(), LcidOf(locale), 0UL);
}

std::string CBool(std::u16string_view text, const runtime::Locale& locale) {
  return Called<VARIANT_BOOL>(VarBoolFromStr, Terminated(text).data(), LcidOf(locale),
                              static_cast<ULONG>(VAR_LOCALBOOL));
}

std::string CInt(double value) { return Called<SHORT>(VarI2FromR8, value); }

std::string CLng(double value) { return Called<LONG>(VarI4FromR8, value); }

std::string ToText(double value, const runtime::Locale& locale) {
  Variant variant;
  variant->vt = VT_R8;
  variant->dblVal = value;
  return PlainText(variant, locale);
}

std::string ToText(float value, const runtime::Locale& locale) {
  Variant variant;
  variant->vt = VT_R4;
  variant->fltVal = value;
  return PlainText(variant, locale);
}

std::string ToText(bool value, const runtime::Locale& locale) {
  Variant variant;
  variant->vt = VT_BOOL;
  variant->boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  return PlainText(variant, locale);
}

std::string Format(double value, std::u16string_view mask, const runtime::Locale& locale) {
  Variant variant;
  variant->vt = VT_R8;
  variant->dblVal = value;
  return Formatted(variant, mask, LcidOf(locale));
}

std::string Format(std::u16string_view text, std::u16string_view mask, const runtime::Locale& locale) {
  Variant variant;
  variant->vt = VT_BSTR;
  variant->bstrVal = SysAllocString(Terminated(text).data());
  return Formatted(variant, mask, LcidOf(locale));
}

std::string Format(const runtime::DateTime& moment, std::u16string_view mask) {
  const auto word = [](int number) { return static_cast<WORD>(number); };
  SYSTEMTIME time{};
  time.wYear = word(moment.year);
  time.wMonth = word(moment.month);
  time.wDay = word(moment.day);
  time.wHour = word(moment.hour);
  time.wMinute = word(moment.minute);
  time.wSecond = word(moment.second);
  Variant variant;
  variant->vt = VT_DATE;
  if (!SystemTimeToVariantTime(&time, &variant->date)) return "no such moment";
  return Formatted(variant, mask, kSpanish);
}

int ToByte(char16_t letter) {
  const auto wide = static_cast<wchar_t>(letter);
  char bytes[4];
  if (WideCharToMultiByte(kWindows1252, 0, &wide, 1, bytes, sizeof bytes, nullptr, nullptr) != 1) return -1;
  return static_cast<std::uint8_t>(bytes[0]);
}

char16_t FromByte(std::uint8_t byte) {
  const auto narrow = static_cast<char>(byte);
  wchar_t wide = 0;
  MultiByteToWideChar(kWindows1252, 0, &narrow, 1, &wide, 1);
  return static_cast<char16_t>(wide);
}

char16_t UCase(char16_t letter) {
  const auto wide = static_cast<wchar_t>(letter);
  wchar_t upper = 0;
  LCMapStringW(kSpanish, LCMAP_UPPERCASE, &wide, 1, &upper, 1);
  return static_cast<char16_t>(upper);
}

}  // namespace qm::test::oracle
