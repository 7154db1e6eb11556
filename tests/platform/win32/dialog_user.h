#pragma once
// What a user sees of a dialog, hears of it and does in it, besides window_driver.h.

#include <map>
#include <string>
#include <vector>

#include "tests/platform/win32/window_driver.h"

namespace qm::platform::win32 {

inline std::vector<HWND> ChildrenOf(HWND dialog, const wchar_t* className) {
  std::vector<HWND> children;
  for (HWND child = nullptr; (child = FindWindowExW(dialog, child, className, nullptr));)
    children.push_back(child);
  return children;
}

inline void Type(HWND entry, const std::u16string& text) {
  SendMessageW(entry, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(text)));
}

// On its way between windows the focus is nowhere for a moment; it is waited for.
inline HWND FocusOf(HWND dialog) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  const DWORD thread = GetWindowThreadProcessId(dialog, nullptr);
  (void)WaitUntil([&] { return GetGUIThreadInfo(thread, &info) && info.hwndFocus; });
  return info.hwndFocus;
}

// Presses the key where the focus is and waits until it is elsewhere.
inline void PressAndMoveOn(HWND dialog, WPARAM key) {
  const HWND before = FocusOf(dialog);
  WindowDriver::Press(before, key);
  (void)WaitUntil([&] { return FocusOf(dialog) != before; });
}

inline std::vector<std::u16string> ItemsOf(HWND list) {
  std::vector<std::u16string> items;
  const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    std::u16string text(
        static_cast<std::size_t>(SendMessageW(list, LB_GETTEXTLEN, static_cast<WPARAM>(i), 0)) + 1, u'\0');
    SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(WideBuffer(text)));
    text.pop_back();
    items.push_back(std::move(text));
  }
  return items;
}

// As a click in the list does.
inline void Select(HWND list, int position) {
  SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(position), 0);
  SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE),
               reinterpret_cast<LPARAM>(list));
}
inline void Choose(HWND choice, int position) {
  SendMessageW(choice, CB_SETCURSEL, static_cast<WPARAM>(position), 0);
  SendMessageW(GetParent(choice), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(choice), CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(choice));
}

inline RECT PlaceIn(HWND dialog, HWND control) {
  RECT area{};
  GetWindowRect(control, &area);
  MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

inline std::wstring ClassOf(HWND window) {
  wchar_t name[40] = L"";
  GetClassNameW(window, name, 40);
  return name;
}

// What a screen reader tells: boxes and lists are named by the label that stands right before them, all else
// by its own text.
inline std::u16string NameOf(HWND control) {
  const std::wstring kind = ClassOf(control);
  if (kind != L"Edit" && kind != L"ComboBox" && kind != L"ListBox") return WindowDriver::TextOf(control);
  const HWND label = GetWindow(control, GW_HWNDPREV);
  return label && ClassOf(label) == L"Static" ? WindowDriver::TextOf(label) : std::u16string();
}

// Of every control that takes the keyboard, by its id.
inline std::map<int, std::u16string> NamesIn(HWND window) {
  std::map<int, std::u16string> names;
  for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    if ((GetWindowLongPtrW(child, GWL_STYLE) & WS_TABSTOP) != 0) names[GetDlgCtrlID(child)] = NameOf(child);
  return names;
}

inline bool IsGroup(HWND control) {
  wchar_t name[16] = L"";
  GetClassNameW(control, name, 16);
  return lstrcmpiW(name, L"Button") == 0 &&
         (GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

// An icon stands where the text would.
inline bool ShowsNoText(HWND button) {
  const LONG_PTR style = GetWindowLongPtrW(button, GWL_STYLE);
  return (style & BS_TYPEMASK) == BS_OWNERDRAW || (style & (BS_ICON | BS_BITMAP)) != 0;
}

// Controls that lie outside the dialog, over one another or cut their texts; empty when all is well.
inline std::string FaultsOf(HWND dialog) {
  std::string faults;
  RECT client{};
  GetClientRect(dialog, &client);
  std::vector<HWND> controls;
  for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    if ((GetWindowLongPtrW(child, GWL_STYLE) & WS_VISIBLE) != 0) controls.push_back(child);
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const RECT area = PlaceIn(dialog, controls[i]);
    const std::string id = std::to_string(GetDlgCtrlID(controls[i]));
    if (area.left < 0 || area.top < 0 || area.right > client.right || area.bottom > client.bottom ||
        area.right <= area.left || area.bottom <= area.top)
      faults += "outside: " + id + "\n";
    wchar_t name[16] = L"";
    GetClassNameW(controls[i], name, 16);
    const bool drawn = (GetWindowLongPtrW(controls[i], GWL_STYLE) & SS_TYPEMASK) == SS_OWNERDRAW;
    if (lstrcmpiW(name, L"Static") == 0 && !drawn && !WindowDriver::ShowsAllOf(controls[i]))
      faults += "cut: " + id + "\n";
    if (lstrcmpiW(name, L"Button") == 0 && !ShowsNoText(controls[i])) {
      SIZE needed{};
      HDC dc = GetDC(controls[i]);
      const HGDIOBJ former =
          SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(controls[i], WM_GETFONT, 0, 0)));
      const std::u16string text = WindowDriver::TextOf(controls[i]);
      GetTextExtentPoint32W(dc, Wide(text), static_cast<int>(text.size()), &needed);
      SelectObject(dc, former);
      ReleaseDC(controls[i], dc);
      if (needed.cx > area.right - area.left || needed.cy > area.bottom - area.top)
        faults += "cut: " + id + "\n";
    }
    for (std::size_t j = i + 1; j < controls.size(); ++j) {
      RECT common{};
      const RECT other = PlaceIn(dialog, controls[j]);
      if (!IsGroup(controls[i]) && !IsGroup(controls[j]) && IntersectRect(&common, &area, &other))
        faults += "over one another: " + id + " and " + std::to_string(GetDlgCtrlID(controls[j])) + "\n";
    }
  }
  return faults;
}

}  // namespace qm::platform::win32
