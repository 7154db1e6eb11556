#include "designer/win32/tool_tips.h"

#include "platform/win32/errors.h"
#include "platform/win32/module.h"

namespace qm::designer::win32 {

HWND NewToolTips(HWND owner) {
  const HWND tips =
      CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0,
                      0, 0, owner, nullptr, platform::win32::ThisModule(), nullptr);
  if (!tips) platform::win32::Throw(runtime::ErrorNumber::OutOfMemory);
  return tips;
}

TTTOOLINFOW ToolOf(HWND window, const wchar_t* text) {
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.uFlags = TTF_SUBCLASS;
  tool.hwnd = window;
  tool.lpszText = const_cast<wchar_t*>(text);
  return tool;
}

}  // namespace qm::designer::win32
