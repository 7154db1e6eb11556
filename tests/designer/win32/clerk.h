#pragma once
// A clerk before the designer: a thread that waits for the window, acts on it and, unless it is closed by
// then, closes it. Plain actions are sent; what opens a dialog or a menu is posted.

#include <array>
#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <utility>

#include "designer/win32/modelo_print_window.h"
#include "designer/win32/show.h"
#include "tests/designer/win32/window_world.h"
#include "tests/platform/win32/window_driver.h"

namespace qm::designer::win32 {

using platform::win32::kDialogClass;
using platform::win32::WaitForWindow;
using platform::win32::WaitUntil;
using platform::win32::Wide;
using platform::win32::WindowDriver;

class Clerk {
 public:
  using Action = std::function<void(Clerk&)>;

  explicit Clerk(Action action)
      : host_(GetCurrentThreadId()), thread_([this, action = std::move(action)] {
          form_ = WaitFor(ModeloPrintWindow::kClassName, nullptr);
          if (!form_) return;
          action(*this);
          if (IsWindow(form_)) PostMessageW(form_, WM_CLOSE, 0, 0);
        }) {}
  Clerk(const Clerk&) = delete;
  Clerk& operator=(const Clerk&) = delete;
  ~Clerk() { thread_.join(); }

  [[nodiscard]] HWND Form() const { return form_; }
  [[nodiscard]] HWND Page() const { return Control(kBasePin); }
  [[nodiscard]] HWND Control(int id) const { return GetDlgItem(form_, id); }
  [[nodiscard]] DWORD HostThread() const { return host_; }

  // A visible window of the host's thread, waited for; null when it never comes.
  [[nodiscard]] HWND WaitFor(const wchar_t* className, const wchar_t* title) const {
    return WaitForWindow(host_, className, title);
  }
  // The first entry of the menu that opens, which is closed again; a sub-menu is -1, no menu at all 0.
  [[nodiscard]] int FirstOfTheMenu() const {
    const HWND popUp = WaitFor(L"#32768", nullptr);
    if (!popUp) return 0;
    const auto menu = reinterpret_cast<HMENU>(SendMessageW(popUp, MN_GETHMENU, 0, 0));
    const int first = static_cast<int>(GetMenuItemID(menu, 0));
    SendMessageW(form_, WM_CANCELMODE, 0, 0);
    return WaitUntil([&] { return !IsWindow(popUp) || !IsWindowVisible(popUp); }) ? first : 0;
  }

  void Choose(int command) const { SendMessageW(form_, WM_COMMAND, static_cast<WPARAM>(command), 0); }
  void Click(int id) const { SendMessageW(Control(id), BM_CLICK, 0, 0); }
  [[nodiscard]] std::u16string TextOf(int id) const { return WindowDriver::TextOf(Control(id)); }
  void Type(int id, const std::u16string& text) const {
    SendMessageW(Control(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(text)));
  }
  void Pick(int list, int position) const {
    SendMessageW(Control(list), CB_SETCURSEL, static_cast<WPARAM>(position), 0);
    SendMessageW(form_, WM_COMMAND, MAKEWPARAM(list, CBN_SELCHANGE), reinterpret_cast<LPARAM>(Control(list)));
  }

  // The mouse at a place of the page, in twips, while nothing is scrolled or zoomed.
  static LPARAM At(int xTwips, int yTwips) {
    return MAKELPARAM(PageView::kMargin + xTwips / 15, PageView::kMargin + yTwips / 15);
  }
  void Press(int x, int y) const { SendMessageW(Page(), WM_LBUTTONDOWN, MK_LBUTTON, At(x, y)); }
  void Move(int x, int y) const { SendMessageW(Page(), WM_MOUSEMOVE, MK_LBUTTON, At(x, y)); }
  void Release(int x, int y) const { SendMessageW(Page(), WM_LBUTTONUP, 0, At(x, y)); }
  void ClickAt(int x, int y) const {
    Press(x, y);
    Release(x, y);
  }
  void Drag(int fromX, int fromY, int toX, int toY) const {
    Press(fromX, fromY);
    Move((fromX + toX) / 2, (fromY + toY) / 2);
    Move(toX, toY);
    Release(toX, toY);
  }
  void Key(WPARAM key) const {
    SendMessageW(Page(), WM_KEYDOWN, key, 1);
    SendMessageW(Page(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
  }
  [[nodiscard]] SCROLLINFO Bar(int id) const {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(Control(id), SB_CTL, &info);
    return info;
  }

 private:
  DWORD host_;
  HWND form_ = nullptr;
  std::thread thread_;
};

// A key held down on the host thread's own keyboard.
class HeldKey {
 public:
  HeldKey(const Clerk& clerk, int key, int leftKey) : host_(clerk.HostThread()), keys_{key, leftKey} {
    AttachThreadInput(GetCurrentThreadId(), host_, TRUE);
    Set(0x80);
  }
  HeldKey(const HeldKey&) = delete;
  HeldKey& operator=(const HeldKey&) = delete;
  ~HeldKey() {
    Set(0);
    AttachThreadInput(GetCurrentThreadId(), host_, FALSE);
  }

 private:
  void Set(BYTE state) const {
    BYTE all[256]{};
    GetKeyboardState(all);
    for (const int key : keys_) all[key] = state;
    SetKeyboardState(all);
  }

  DWORD host_;
  std::array<int, 2> keys_;
};

// The clerk's mouse is the only one: what the system says of the real one, whose buttons are up, would end
// the clerk's drags. Its movements come through the queue, the clerk's do not.
class NoOtherMouse {
 public:
  NoOtherMouse() : hook_(SetWindowsHookExW(WH_GETMESSAGE, Silence, nullptr, GetCurrentThreadId())) {}
  NoOtherMouse(const NoOtherMouse&) = delete;
  NoOtherMouse& operator=(const NoOtherMouse&) = delete;
  ~NoOtherMouse() { UnhookWindowsHookEx(hook_); }

 private:
  static LRESULT CALLBACK Silence(int code, WPARAM wide, LPARAM parameter) {
    MSG& message = *reinterpret_cast<MSG*>(parameter);
    if (code == HC_ACTION && message.message == WM_MOUSEMOVE) message.message = WM_NULL;
    return CallNextHookEx(nullptr, code, wide, parameter);
  }

  HHOOK hook_;
};

// The whole of a visit; true when the clerk found the window and did everything.
inline bool Visit(WindowWorld& world, const Clerk::Action& action, std::int16_t numeroModelo = 1) {
  std::atomic<bool> acted = false;
  {
    const Clerk clerk([&](Clerk& self) {
      action(self);
      acted = true;
    });
    const NoOtherMouse silence;
    ShowModeloPrint(world.world, world.menus, numeroModelo);
  }
  return acted;
}

}  // namespace qm::designer::win32
