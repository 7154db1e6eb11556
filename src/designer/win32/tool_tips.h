#pragma once
// The system's control for tool tips.

#include <windows.h>

#include <commctrl.h>

namespace qm::designer::win32 {

// It goes with its owner. Error 7 when Windows has no room for it.
[[nodiscard]] HWND NewToolTips(HWND owner);
// A tool of a window, in the form that every version of the control takes.
[[nodiscard]] TTTOOLINFOW ToolOf(HWND window, const wchar_t* text);

}  // namespace qm::designer::win32
