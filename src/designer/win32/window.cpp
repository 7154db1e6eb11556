#include "designer/win32/window.h"

#include <utility>

#include "platform/win32/errors.h"
#include "platform/win32/module.h"

namespace qm::designer::win32 {

using platform::win32::ThisModule;

void Window::Create(const Description& description) {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.style = description.classStyle;
  windowClass.lpfnWndProc = Procedure;
  windowClass.hInstance = ThisModule();
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.lpszClassName = description.className;
  className_ = description.className;
  RegisterClassExW(&windowClass);  // fails where another thread's window has done it, with the same class
  const RECT& place = description.place;
  CreateWindowExW(description.extendedStyle, description.className, description.title, description.style,
                  place.left, place.top, WidthOf(place), HeightOf(place), description.parent,
                  reinterpret_cast<HMENU>(static_cast<INT_PTR>(description.id)), ThisModule(), this);
  if (!window_) platform::win32::Throw(runtime::ErrorNumber::OutOfMemory);
}

Window::~Window() {
  if (const HWND window = std::exchange(window_, nullptr)) {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    DestroyWindow(window);
  }
  // A library that is unloaded must leave no class that points into it; one that has windows still stays.
  if (!className_.empty()) UnregisterClassW(className_.c_str(), ThisModule());
}

LRESULT CALLBACK Window::Procedure(HWND window, UINT message, WPARAM wide, LPARAM parameter) noexcept {
  if (message == WM_NCCREATE) {
    auto* const self = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(parameter)->lpCreateParams);
    self->window_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* const self = reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!self) return DefWindowProcW(window, message, wide, parameter);
  if (message == WM_NCDESTROY) {  // by its parent's end
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    self->window_ = nullptr;
    return DefWindowProcW(window, message, wide, parameter);
  }
  try {
    if (const Answer answer = self->Receive(message, wide, parameter)) return *answer;
  } catch (...) {
    self->Failed();
    if (message == WM_PAINT) ValidateRect(window, nullptr);  // or it would be asked for again at once
    return 0;
  }
  return DefWindowProcW(window, message, wide, parameter);
}

}  // namespace qm::designer::win32
