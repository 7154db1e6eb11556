#pragma once
// Windows' own headers, once, with what every file of this folder needs to call them: texts are char16_t in
// the core and wchar_t in Windows, both UTF-16.

#include <windows.h>

#include <string>
#include <string_view>

namespace qm::platform::win32 {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

[[nodiscard]] inline const wchar_t* Wide(const char16_t* text) {
  return reinterpret_cast<const wchar_t*>(text);
}
[[nodiscard]] inline const wchar_t* Wide(const std::u16string& text) { return Wide(text.c_str()); }
[[nodiscard]] inline wchar_t* WideBuffer(std::u16string& text) {
  return reinterpret_cast<wchar_t*>(text.data());
}
[[nodiscard]] inline std::u16string Text(const wchar_t* text) {
  return text ? std::u16string(reinterpret_cast<const char16_t*>(text)) : std::u16string();
}
[[nodiscard]] inline std::u16string Text(const wchar_t* text, std::size_t length) {
  return {reinterpret_cast<const char16_t*>(text), length};
}

}  // namespace qm::platform::win32
