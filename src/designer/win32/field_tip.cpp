#include "designer/win32/field_tip.h"

#include "platform/win32/errors.h"
#include "platform/win32/module.h"
#include "platform/win32/wide.h"

#include <commctrl.h>

namespace qm::designer::win32 {
namespace {

constexpr int kWidest = 400;  // pixels; longer captions are wrapped

TTTOOLINFOW ToolOf(HWND view, const std::u16string& text, const RECT& area) {
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;  // which every version of the control takes
  tool.uFlags = TTF_SUBCLASS;
  tool.hwnd = view;
  tool.uId = 1;
  tool.rect = area;
  tool.lpszText = const_cast<wchar_t*>(platform::win32::Wide(text));
  return tool;
}

}  // namespace

void FieldTip::Create(HWND view) {
  view_ = view;
  tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0,
                          0, 0, 0, view, nullptr, platform::win32::ThisModule(), nullptr);
  if (!tips_) platform::win32::Throw(runtime::ErrorNumber::OutOfMemory);
  const TTTOOLINFOW tool = ToolOf(view_, text_, area_);
  SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, kWidest);
}

void FieldTip::Follow(const std::u16string& text, const RECT& area) {
  const RECT shownFor = text.empty() ? RECT{} : area;
  if (text == text_ && EqualRect(&shownFor, &area_)) return;
  text_ = text;
  area_ = shownFor;
  const TTTOOLINFOW tool = ToolOf(view_, text_, area_);
  SendMessageW(tips_, TTM_POP, 0, 0);
  SendMessageW(tips_, TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&tool));
  SendMessageW(tips_, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace qm::designer::win32
