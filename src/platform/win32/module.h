#pragma once
// The module that this code is part of: the component's library, not the host's program.

#include <string>

#include "platform/win32/wide.h"

namespace qm::platform::win32 {

[[nodiscard]] HINSTANCE ThisModule();
[[nodiscard]] std::u16string ModulePath();

}  // namespace qm::platform::win32
