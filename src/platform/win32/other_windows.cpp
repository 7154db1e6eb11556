#include "platform/win32/other_windows.h"

namespace qm::platform::win32 {
namespace {

BOOL CALLBACK CollectUsable(HWND window, LPARAM list) noexcept {
  if (IsWindowVisible(window) && IsWindowEnabled(window))
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

}  // namespace

OtherWindows::OtherWindows(HWND owner) {
  EnumThreadWindows(GetCurrentThreadId(), CollectUsable, reinterpret_cast<LPARAM>(&windows_));
  std::erase(windows_, owner);
  for (const HWND window : windows_) EnableWindow(window, FALSE);
}

void OtherWindows::Enable() {
  for (const HWND window : windows_) EnableWindow(window, TRUE);
  windows_.clear();
}

}  // namespace qm::platform::win32
