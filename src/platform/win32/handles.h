#pragma once
// Owners of Windows handles: moved, never copied, and given back on destruction.

#include "platform/win32/wide.h"

#include <objbase.h>
#include <winspool.h>

#include <utility>

// Macros that would rename members of the core's interfaces.
#undef AddForm
#undef DeleteForm

namespace qm::platform::win32 {

// Rule has the type Handle, the value None and the function Close(Handle).
template <typename Rule>
class Owned {
 public:
  using Handle = typename Rule::Handle;

  Owned() = default;
  explicit Owned(Handle handle) : handle_(handle) {}
  Owned(Owned&& other) noexcept : handle_(other.Release()) {}
  Owned& operator=(Owned&& other) noexcept {
    if (this != &other) Reset(other.Release());
    return *this;
  }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;
  ~Owned() { Reset(); }

  [[nodiscard]] Handle Get() const { return handle_; }
  [[nodiscard]] explicit operator bool() const { return handle_ != Rule::None(); }
  [[nodiscard]] Handle Release() { return std::exchange(handle_, Rule::None()); }
  void Reset(Handle handle = Rule::None()) {
    const Handle old = std::exchange(handle_, handle);
    if (old != Rule::None()) Rule::Close(old);
  }
  // For functions that hand a handle out through a pointer.
  [[nodiscard]] Handle* Receive() {
    Reset();
    return &handle_;
  }

 private:
  Handle handle_ = Rule::None();
};

template <typename HandleType>
struct NullHandle {
  using Handle = HandleType;
  static Handle None() { return nullptr; }
};

template <typename HandleType>
struct GdiObjectRule : NullHandle<HandleType> {
  static void Close(HandleType object) { DeleteObject(object); }
};
struct DeviceContextRule : NullHandle<HDC> {
  static void Close(HDC dc) { DeleteDC(dc); }
};
struct PrinterRule : NullHandle<HANDLE> {
  static void Close(HANDLE printer) { ClosePrinter(printer); }
};
struct FileRule {
  using Handle = HANDLE;
  static HANDLE None() { return INVALID_HANDLE_VALUE; }
  static void Close(HANDLE file) { CloseHandle(file); }
};
struct GlobalMemoryRule : NullHandle<HGLOBAL> {
  static void Close(HGLOBAL memory) { GlobalFree(memory); }
};
struct WindowRule : NullHandle<HWND> {
  static void Close(HWND window) { DestroyWindow(window); }
};
struct ActivationContextRule {
  using Handle = HANDLE;
  static HANDLE None() { return INVALID_HANDLE_VALUE; }
  static void Close(HANDLE context) { ReleaseActCtx(context); }
};

using OwnedFont = Owned<GdiObjectRule<HFONT>>;
using OwnedBitmap = Owned<GdiObjectRule<HBITMAP>>;
using OwnedDc = Owned<DeviceContextRule>;  // of CreateDC and CreateCompatibleDC
using OwnedPrinter = Owned<PrinterRule>;
using OwnedFile = Owned<FileRule>;
using OwnedGlobalMemory = Owned<GlobalMemoryRule>;
using OwnedWindow = Owned<WindowRule>;
using OwnedActivationContext = Owned<ActivationContextRule>;

// An object selected into a device context for a scope; the former one comes back at its end.
class SelectedObject {
 public:
  SelectedObject(HDC dc, HGDIOBJ object) : dc_(dc), former_(SelectObject(dc, object)) {}
  SelectedObject(const SelectedObject&) = delete;
  SelectedObject& operator=(const SelectedObject&) = delete;
  ~SelectedObject() {
    if (former_) SelectObject(dc_, former_);
  }

 private:
  HDC dc_;
  HGDIOBJ former_;
};

// The screen's device context for a scope.
class ScreenDc {
 public:
  ScreenDc() : dc_(GetDC(nullptr)) {}
  ScreenDc(const ScreenDc&) = delete;
  ScreenDc& operator=(const ScreenDc&) = delete;
  ~ScreenDc() {
    if (dc_) ReleaseDC(nullptr, dc_);
  }
  [[nodiscard]] HDC Get() const { return dc_; }

 private:
  HDC dc_;
};

// An activation context in force for a scope, such as the creation of a window.
class ActivatedContext {
 public:
  explicit ActivatedContext(HANDLE context) : active_(ActivateActCtx(context, &cookie_) != FALSE) {}
  ActivatedContext(const ActivatedContext&) = delete;
  ActivatedContext& operator=(const ActivatedContext&) = delete;
  ~ActivatedContext() {
    if (active_) DeactivateActCtx(0, cookie_);
  }

 private:
  ULONG_PTR cookie_ = 0;
  bool active_;
};

// A reference to a COM object.
template <typename Interface>
struct ReferenceRule : NullHandle<Interface*> {
  static void Close(Interface* object) { object->Release(); }
};
template <typename Interface>
using Reference = Owned<ReferenceRule<Interface>>;

}  // namespace qm::platform::win32
