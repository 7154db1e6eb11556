#pragma once
// Flat buttons of the toolbar: ordinary buttons with an icon, which show a ground when the mouse is on them.
// Their text is their name for those who cannot see the icon.

#include "designer/win32/icons.h"
#include "designer/win32/metrics.h"

namespace qm::designer::win32 {

void MakeToolButton(HWND button);  // of the style BS_OWNERDRAW
void DrawToolButton(const DRAWITEMSTRUCT& item, Icon icon, const Metrics& metrics);

}  // namespace qm::designer::win32
