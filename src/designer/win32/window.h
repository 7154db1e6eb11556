#pragma once
// A window of a class of our own. Its messages go to member functions by a table; whatever a handler throws
// stops at the window procedure and is handed to Failed.
// Errors: RuntimeError 7 when Windows has no more windows to give.

#include <optional>
#include <string>

#include "platform/win32/handles.h"

namespace qm::designer::win32 {

// What a handler gives back; nothing leaves the message to Windows as well.
using Answer = std::optional<LRESULT>;

template <class Self>
struct Handler {
  UINT message;
  Answer (Self::*handle)(WPARAM wide, LPARAM parameter);
};

template <class Self, std::size_t N>
[[nodiscard]] Answer Dispatch(Self& self, const Handler<Self> (&table)[N], UINT message, WPARAM wide,
                              LPARAM parameter) {
  for (const Handler<Self>& entry : table)
    if (entry.message == message) return (self.*entry.handle)(wide, parameter);
  return {};
}

class Window {
 public:
  struct Description {
    const wchar_t* className;
    const wchar_t* title;
    DWORD style;
    DWORD extendedStyle = 0;
    UINT classStyle = 0;
    RECT place{};
    HWND parent = nullptr;  // or owner
    int id = 0;             // of a child
  };

  Window() = default;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window();

  [[nodiscard]] HWND Handle() const { return window_; }

 protected:
  void Create(const Description& description);
  virtual Answer Receive(UINT message, WPARAM wide, LPARAM parameter) = 0;
  // Inside a catch clause.
  virtual void Failed() noexcept = 0;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM parameter) noexcept;

  HWND window_ = nullptr;
  std::wstring className_;
};

[[nodiscard]] inline POINT PointOf(LPARAM parameter) {
  return {static_cast<short>(LOWORD(parameter)), static_cast<short>(HIWORD(parameter))};
}
[[nodiscard]] inline int WidthOf(const RECT& area) { return area.right - area.left; }
[[nodiscard]] inline int HeightOf(const RECT& area) { return area.bottom - area.top; }

}  // namespace qm::designer::win32
