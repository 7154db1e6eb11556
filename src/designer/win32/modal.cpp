#include "designer/win32/modal.h"

namespace qm::designer::win32 {
namespace {

BOOL CALLBACK CollectUsable(HWND window, LPARAM list) noexcept {
  if (IsWindowVisible(window) && IsWindowEnabled(window))
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

}  // namespace

RestingWindows::RestingWindows() {
  EnumThreadWindows(GetCurrentThreadId(), CollectUsable, reinterpret_cast<LPARAM>(&windows_));
  for (const HWND window : windows_) EnableWindow(window, FALSE);
}

void RestingWindows::Wake() {
  for (const HWND window : windows_) EnableWindow(window, TRUE);
  windows_.clear();
}

void RunModal(ModalWindow& window) {
  while (!window.Closed()) {
    MSG message{};
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (!window.Idle()) WaitMessage();
      continue;
    }
    if (message.message == WM_QUIT) {
      window.ProgramEnds();
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (window.Translate(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace qm::designer::win32
