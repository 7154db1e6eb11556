#pragma once
// Colours of the designer's own drawing.

#include "platform/win32/wide.h"

namespace qm::designer::win32 {

inline constexpr COLORREF kDesk = RGB(226, 229, 234);
inline constexpr COLORREF kPageShadow = RGB(196, 201, 209);
inline constexpr COLORREF kPageEdge = RGB(168, 174, 184);
inline constexpr COLORREF kFaintOutline = RGB(120, 128, 140);
inline constexpr COLORREF kAccent = RGB(0, 95, 184);
inline constexpr COLORREF kGuide = RGB(214, 0, 110);
inline constexpr COLORREF kTint = RGB(240, 160, 40);
inline constexpr int kTintPercent = 22;
inline constexpr COLORREF kIcon = RGB(58, 66, 78);

}  // namespace qm::designer::win32
