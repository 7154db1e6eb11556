#pragma once
// The designer as the host calls it: modal within the call, on the host's thread.
// Errors: 400 when it is open on this thread already; 7 when Windows has no more windows to give.

#include "data/picker_menus.h"
#include "designer/environment.h"

namespace qm::designer::win32 {

// Throws 400 when a host calls again from what runs while the designer is open, a timer for example.
void RequireNotShown();

// Returns when the window is closed. All other windows of the thread rest meanwhile.
void ShowModeloPrint(const Environment& environment, const data::PickerMenus& menus,
                     std::int16_t numeroModelo);

}  // namespace qm::designer::win32
