// Mouse and keyboard of the page view.

#include <algorithm>
#include <utility>

#include "designer/win32/keys.h"
#include "designer/win32/page_view.h"

namespace qm::designer::win32 {
namespace {

// Windows' own pointers by their numbers.
constexpr int kArrow = 32512;
constexpr int kCross = 32515;
constexpr int kSizeWestEast = 32644;
constexpr int kSizeNorthSouth = 32645;

constexpr int kWheelTwips = 720;  // of the screen, a notch of the wheel

}  // namespace

Answer PageView::Receive(UINT message, WPARAM wide, LPARAM parameter) {
  static constexpr Handler<PageView> kMessages[] = {
      {WM_PAINT, &PageView::OnPaint},
      {WM_ERASEBKGND, &PageView::OnEraseBackground},
      {WM_SIZE, &PageView::OnSize},
      {WM_MOUSEMOVE, &PageView::OnMouseMove},
      {WM_LBUTTONDOWN, &PageView::OnLeftDown},
      {WM_LBUTTONDBLCLK, &PageView::OnLeftDoubleClick},
      {WM_LBUTTONUP, &PageView::OnLeftUp},
      {WM_RBUTTONDOWN, &PageView::OnRightDown},
      {WM_RBUTTONDBLCLK, &PageView::OnRightDown},
      {WM_CAPTURECHANGED, &PageView::OnCaptureChanged},
      {WM_MOUSEWHEEL, &PageView::OnWheel},
      {WM_SETCURSOR, &PageView::OnSetCursor},
      {WM_KEYDOWN, &PageView::OnKeyDown},
      {WM_KEYUP, &PageView::OnKeyUp},
      {WM_CONTEXTMENU, &PageView::OnContextMenu},
      {WM_GETDLGCODE, &PageView::OnGetDialogCode},
      {WM_SETFOCUS, &PageView::OnFocus},
      {WM_KILLFOCUS, &PageView::OnFocus},
      {WM_TIMER, &PageView::OnTimer},
  };
  return Dispatch(*this, kMessages, message, wide, parameter);
}

// Once, not at every attempt to paint.
void PageView::Failed() noexcept {
  if (std::exchange(failing_, true)) return;
  failure_ = std::current_exception();
  PostMessageW(GetParent(Handle()), kFailure, 0, 0);
}

Answer PageView::OnLeftDown(WPARAM, LPARAM parameter) {
  SetFocus(Handle());
  SetCapture(Handle());
  TheCanvas().Press(ToPage(PointOf(parameter)), Button::Left);
  return 0;
}

Answer PageView::OnLeftDoubleClick(WPARAM wide, LPARAM parameter) {
  const platform::Point at = ToPage(PointOf(parameter));
  const bool onHandle = TheCanvas().PointerAt(at) != Pointer::Arrow;  // above whatever lies there
  if (onHandle) return OnLeftDown(wide, parameter);
  if (TheCanvas().FieldAt(at) != 0) {
    presenter_.V_Propiedades_Click();
  } else if (TheCanvas().LogoAt(at)) {
    presenter_.Fotx_DblClick();
  } else {
    return OnLeftDown(wide, parameter);
  }
  return 0;
}

Answer PageView::OnLeftUp(WPARAM, LPARAM parameter) {
  TheCanvas().Release(ToPage(PointOf(parameter)));
  if (GetCapture() == Handle()) ReleaseCapture();
  return 0;
}

Answer PageView::OnRightDown(WPARAM, LPARAM parameter) {
  SetFocus(Handle());
  TheCanvas().Press(ToPage(PointOf(parameter)), Button::Right);
  return 0;
}

Answer PageView::OnMouseMove(WPARAM wide, LPARAM parameter) {
  const platform::Point mouse = ToPage(PointOf(parameter));
  TheCanvas().Move(mouse, (wide & MK_LBUTTON) != 0, PressedModifiers());
  FollowToolTip(mouse);
  return 0;
}

void PageView::FollowToolTip(platform::Point mouse) {
  const std::u16string text = TheCanvas().ToolTipAt(mouse);
  const Field* field = text.empty() ? nullptr : Current().At(TheCanvas().FieldAt(mouse));
  tip_.Follow(text, field != nullptr ? ToView(painter_.Transform().PixelsOf(field->box)) : RECT{});
}

// Something came between, another window for example: what was dragged stays where it is.
Answer PageView::OnCaptureChanged(WPARAM, LPARAM) {
  TheCanvas().EndDrag();
  return 0;
}

void PageView::Wheel(WPARAM wide) {
  const int delta = static_cast<short>(HIWORD(wide));
  Canvas& canvas = TheCanvas();
  if (LOWORD(wide) & MK_CONTROL) {
    POINT mouse{};
    GetCursorPos(&mouse);
    ScreenToClient(Handle(), &mouse);
    return canvas.ZoomBy(delta > 0 ? 1 : -1, ToPage(mouse));
  }
  const int step = static_cast<int>(kWheelTwips * delta / (WHEEL_DELTA * canvas.Zoom()));
  if (LOWORD(wide) & MK_SHIFT) return canvas.ScrollTo(canvas.Horizontal() - step, canvas.Vertical());
  canvas.ScrollTo(canvas.Horizontal(), canvas.Vertical() - step);
}

Answer PageView::OnWheel(WPARAM wide, LPARAM) {
  Wheel(wide);
  return 0;
}

Answer PageView::OnSetCursor(WPARAM, LPARAM parameter) {
  if (LOWORD(parameter) != HTCLIENT) return {};
  POINT mouse{};
  GetCursorPos(&mouse);
  ScreenToClient(Handle(), &mouse);
  static constexpr std::pair<Pointer, int> kPointers[] = {{Pointer::Arrow, kArrow},
                                                          {Pointer::SizeNorthSouth, kSizeNorthSouth},
                                                          {Pointer::SizeWestEast, kSizeWestEast},
                                                          {Pointer::Corner, kCross}};
  const Pointer wanted = TheCanvas().PointerAt(ToPage(mouse));
  for (const auto& [pointer, resource] : kPointers)
    if (pointer == wanted) SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(resource)));
  return TRUE;
}

void PageView::MouseMovedOrKeyChanged() {
  POINT mouse{};
  GetCursorPos(&mouse);
  ScreenToClient(Handle(), &mouse);
  TheCanvas().Move(ToPage(mouse), GetKeyState(VK_LBUTTON) < 0, PressedModifiers());
}

Answer PageView::OnKeyDown(WPARAM wide, LPARAM parameter) {
  if (TheCanvas().Dragging()) {
    if (wide == VK_ESCAPE) TheCanvas().CancelDrag();
    if (wide == VK_SHIFT || wide == VK_CONTROL) MouseMovedOrKeyChanged();
    return 0;
  }
  return PressCanvasKey(presenter_, static_cast<UINT>(wide), (parameter & 1 << 30) != 0) ? Answer(0)
                                                                                         : Answer();
}

Answer PageView::OnKeyUp(WPARAM wide, LPARAM) {
  if (TheCanvas().Dragging() && (wide == VK_SHIFT || wide == VK_CONTROL)) MouseMovedOrKeyChanged();
  return {};
}

// By the keyboard; the mouse has opened its menu when the button went down.
Answer PageView::OnContextMenu(WPARAM, LPARAM parameter) {
  if (parameter != -1) return 0;
  const Document& document = presenter_.TheDocument();
  return SendMessageW(GetParent(Handle()), kContextMenu,
                      document.Selected() != 0 || document.LogoSelected() ? 0 : 1, 0);
}

// The Tab key walks the fields; where there is none it leaves.
Answer PageView::OnGetDialogCode(WPARAM, LPARAM) {
  const auto& men = Current().men;
  const bool hasFields =
      std::any_of(men.begin(), men.end(), [](const FieldPointer& field) { return field != nullptr; });
  return hasFields ? DLGC_WANTALLKEYS : DLGC_WANTARROWS;
}

Answer PageView::OnFocus(WPARAM, LPARAM) {
  InvalidateRect(Handle(), nullptr, FALSE);
  return 0;
}

}  // namespace qm::designer::win32
