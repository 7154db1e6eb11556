#include "designer/win32/tool_button.h"

#include <commctrl.h>

#include "designer/win32/palette.h"
#include "designer/win32/window.h"

namespace qm::designer::win32 {
namespace {

using platform::win32::OwnedDc;
using platform::win32::OwnedFont;
using platform::win32::SelectedObject;

constexpr UINT_PTR kSubclass = 1;
constexpr int kIconSide = 20;
constexpr COLORREF kHot = RGB(229, 241, 251);
constexpr COLORREF kPressed = RGB(204, 228, 247);

bool IsUnderMouse(HWND window) {
  POINT mouse{};
  GetCursorPos(&mouse);
  return WindowFromPoint(mouse) == window;
}

LRESULT CALLBACK Follow(HWND button, UINT message, WPARAM wide, LPARAM parameter, UINT_PTR id,
                        DWORD_PTR) noexcept {
  if (message == WM_MOUSEMOVE) {
    TRACKMOUSEEVENT leave{sizeof leave, TME_LEAVE, button, 0};
    if (!GetPropW(button, L"QmCaliente")) {
      SetPropW(button, L"QmCaliente", reinterpret_cast<HANDLE>(1));
      TrackMouseEvent(&leave);
      InvalidateRect(button, nullptr, FALSE);
    }
  }
  if (message == WM_MOUSELEAVE || message == WM_NCDESTROY) {
    RemovePropW(button, L"QmCaliente");
    InvalidateRect(button, nullptr, FALSE);
  }
  if (message == WM_NCDESTROY) RemoveWindowSubclass(button, Follow, id);
  return DefSubclassProc(button, message, wide, parameter);
}

struct BrushRule : platform::win32::GdiObjectRule<HBRUSH> {};
struct PenRule : platform::win32::GdiObjectRule<HPEN> {};

void DrawGround(const DRAWITEMSTRUCT& item, COLORREF ground) {
  const platform::win32::Owned<BrushRule> brush(CreateSolidBrush(ground));
  const platform::win32::Owned<PenRule> pen(CreatePen(PS_SOLID, 1, kAccent));
  const SelectedObject withBrush(item.hDC, brush.Get());
  const SelectedObject withPen(item.hDC, pen.Get());
  RoundRect(item.hDC, item.rcItem.left, item.rcItem.top, item.rcItem.right, item.rcItem.bottom, 6, 6);
}

}  // namespace

void MakeToolButton(HWND button) { SetWindowSubclass(button, Follow, kSubclass, 0); }

void DrawToolButton(const DRAWITEMSTRUCT& item, Icon icon, const Metrics& metrics) {
  FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_BTNFACE));
  const bool pressed = (item.itemState & ODS_SELECTED) != 0;
  if (pressed || (GetPropW(item.hwndItem, L"QmCaliente") && IsUnderMouse(item.hwndItem)))
    DrawGround(item, pressed ? kPressed : kHot);
  const int side = metrics.Px(kIconSide);
  const Bitmap32 drawing = NewIcon(icon, side);
  const OwnedDc memory(CreateCompatibleDC(item.hDC));
  const SelectedObject selected(memory.Get(), drawing.Handle());
  AlphaBlend(item.hDC, item.rcItem.left + (WidthOf(item.rcItem) - side) / 2,
             item.rcItem.top + (HeightOf(item.rcItem) - side) / 2, side, side, memory.Get(), 0, 0, side, side,
             {AC_SRC_OVER, 0, 0xFF, AC_SRC_ALPHA});
  if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
    RECT frame = item.rcItem;
    InflateRect(&frame, -2, -2);
    DrawFocusRect(item.hDC, &frame);
  }
}

}  // namespace qm::designer::win32
