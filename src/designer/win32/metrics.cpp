#include "designer/win32/metrics.h"

#include <cstring>
#include <cwchar>

namespace qm::designer::win32 {
namespace {

using platform::win32::ScreenDc;
using platform::win32::SelectedObject;

// Functions that came with Windows 10; an older one has one resolution for all windows.
template <class Function>
Function OfUser32(const char* name) {
  const HMODULE user = GetModuleHandleW(L"user32.dll");
  const FARPROC found = user ? GetProcAddress(user, name) : nullptr;
  Function function = nullptr;
  static_assert(sizeof function == sizeof found);
  std::memcpy(&function, &found, sizeof found);
  return function;
}

int ScreenDpi() { return GetDeviceCaps(ScreenDc().Get(), LOGPIXELSY); }

int DpiOf(HWND window) {
  const auto ofWindow = OfUser32<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
  const int dpi = ofWindow ? static_cast<int>(ofWindow(window)) : ScreenDpi();
  return dpi > 0 ? dpi : 96;
}

LOGFONTW MessageFont(int dpi) {
  using Ask = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT);
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  const auto askForDpi = OfUser32<Ask>("SystemParametersInfoForDpi");
  if (askForDpi && askForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(dpi)))
    return metrics.lfMessageFont;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, ScreenDpi());
  return metrics.lfMessageFont;
}

}  // namespace

Metrics::Metrics(HWND window) : Metrics(DpiOf(window)) {}

Metrics::Metrics(int dpi) : dpi_(dpi) {
  const LOGFONTW description = MessageFont(dpi_);
  font_.Reset(CreateFontIndirectW(&description));
  const ScreenDc screen;
  const SelectedObject selected(screen.Get(), font_.Get());
  TEXTMETRICW metrics{};
  GetTextMetricsW(screen.Get(), &metrics);
  textHeight_ = static_cast<int>(metrics.tmHeight);
}

int Metrics::TextWidth(const wchar_t* text) const {
  const ScreenDc screen;
  const SelectedObject selected(screen.Get(), font_.Get());
  SIZE size{};
  GetTextExtentPoint32W(screen.Get(), text, static_cast<int>(std::wcslen(text)), &size);
  return static_cast<int>(size.cx);
}

}  // namespace qm::designer::win32
