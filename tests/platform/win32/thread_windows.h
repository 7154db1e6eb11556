#pragma once
// The windows of one thread. Other programs of the desktop may show windows of the same class and title at
// the same time, another run of the same test among them.

#include "tests/platform/win32/wait_until.h"

namespace qm::platform::win32 {

inline constexpr wchar_t kDialogClass[] = L"#32770";

// A visible one, of any title when there is none to look for; null when there is none.
inline HWND VisibleWindow(DWORD thread, const wchar_t* className, const wchar_t* title = nullptr,
                          HWND except = nullptr) {
  for (HWND window = nullptr; (window = FindWindowExW(nullptr, window, className, title)) != nullptr;)
    if (window != except && IsWindowVisible(window) && GetWindowThreadProcessId(window, nullptr) == thread)
      return window;
  return nullptr;
}

// The same, waited for; null when it never comes.
inline HWND WaitForWindow(DWORD thread, const wchar_t* className, const wchar_t* title = nullptr,
                          HWND except = nullptr) {
  HWND window = nullptr;
  (void)WaitUntil([&] { return (window = VisibleWindow(thread, className, title, except)) != nullptr; });
  return window;
}

}  // namespace qm::platform::win32
