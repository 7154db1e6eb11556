#pragma once
// BSTRs to the core's texts and back. A null BSTR is an empty text; embedded zeros are kept.

#include <windows.h>

#include <oleauto.h>

#include <new>
#include <string>
#include <string_view>

namespace qm::automation {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

[[nodiscard]] inline std::u16string_view TextOf(const OLECHAR* bstr) {
  return {reinterpret_cast<const char16_t*>(bstr), bstr ? SysStringLen(const_cast<BSTR>(bstr)) : 0};
}

[[nodiscard]] inline BSTR NewBstr(std::u16string_view text) {
  BSTR made =
      SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()), static_cast<UINT>(text.size()));
  if (!made) throw std::bad_alloc();
  return made;
}

// For functions that take a zero-terminated text, some through a pointer to non-const without changing it.
[[nodiscard]] inline wchar_t* AsWide(const std::u16string& text) {
  return const_cast<wchar_t*>(reinterpret_cast<const wchar_t*>(text.c_str()));
}

}  // namespace qm::automation
