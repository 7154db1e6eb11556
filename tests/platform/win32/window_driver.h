#pragma once
// A user at the keyboard: a thread that waits for a window of the test's own thread and then acts on it.
// Plain actions are sent; what ends a modal dialog is posted.

#include <atomic>
#include <functional>
#include <string>
#include <thread>

#include "platform/win32/wide.h"
#include "tests/platform/win32/thread_windows.h"

namespace qm::platform::win32 {

class WindowDriver {
 public:
  // Acts on the first visible dialog with that title; gives up after ten seconds.
  WindowDriver(std::u16string title, std::function<void(HWND)> action)
      : title_(std::move(title)), thread_([this, owner = GetCurrentThreadId(), action = std::move(action)] {
          if (const HWND window = WaitForWindow(owner, kDialogClass, Wide(title_))) {
            action(window);
            acted_ = true;
          }
        }) {}
  WindowDriver(const WindowDriver&) = delete;
  WindowDriver& operator=(const WindowDriver&) = delete;
  ~WindowDriver() { Join(); }

  [[nodiscard]] bool Acted() {
    Join();
    return acted_;
  }

  static std::u16string TextOf(HWND window) {
    std::u16string text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, u'\0');
    const LRESULT length =
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(WideBuffer(text)));
    text.resize(static_cast<std::size_t>(length));
    return text;
  }

  static HWND ChildOf(HWND dialog, std::u16string_view className) {
    return FindWindowExW(dialog, nullptr, Wide(std::u16string(className)), nullptr);
  }

  static void Press(HWND control, WPARAM key) {
    PostMessageW(control, WM_KEYDOWN, key, 1);
    PostMessageW(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
  }

  static void Click(HWND dialog, int button) { PostMessageW(GetDlgItem(dialog, button), BM_CLICK, 0, 0); }

  // Nothing of the window's texts is cut: every label is as large as its text needs.
  static bool ShowsAllOf(HWND label) {
    const std::u16string text = TextOf(label);
    RECT area{};
    GetClientRect(label, &area);
    RECT needed = area;
    HDC dc = GetDC(label);
    const HGDIOBJ former = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(label, WM_GETFONT, 0, 0)));
    DrawTextW(dc, const_cast<wchar_t*>(Wide(text)), static_cast<int>(text.size()), &needed,
              DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL | DT_EXPANDTABS);
    SelectObject(dc, former);
    ReleaseDC(label, dc);
    return needed.right <= area.right && needed.bottom <= area.bottom;
  }

 private:
  void Join() {
    if (thread_.joinable()) thread_.join();
  }

  std::u16string title_;
  std::atomic<bool> acted_ = false;
  std::thread thread_;
};

}  // namespace qm::platform::win32
