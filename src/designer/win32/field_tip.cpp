#include "designer/win32/field_tip.h"

#include "designer/win32/tool_tips.h"
#include "platform/win32/wide.h"

namespace qm::designer::win32 {
namespace {

constexpr int kWidest = 400;  // pixels; longer captions are wrapped

TTTOOLINFOW FieldTool(HWND view, const std::u16string& text, const RECT& area) {
  TTTOOLINFOW tool = ToolOf(view, platform::win32::Wide(text));
  tool.uId = 1;
  tool.rect = area;
  return tool;
}

}  // namespace

void FieldTip::Create(HWND view) {
  view_ = view;
  tips_ = NewToolTips(view);
  const TTTOOLINFOW tool = FieldTool(view_, text_, area_);
  SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, kWidest);
}

void FieldTip::Follow(const std::u16string& text, const RECT& area) {
  const RECT shownFor = text.empty() ? RECT{} : area;
  if (text == text_ && EqualRect(&shownFor, &area_)) return;
  text_ = text;
  area_ = shownFor;
  const TTTOOLINFOW tool = FieldTool(view_, text_, area_);
  SendMessageW(tips_, TTM_POP, 0, 0);
  SendMessageW(tips_, TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&tool));
  SendMessageW(tips_, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace qm::designer::win32
