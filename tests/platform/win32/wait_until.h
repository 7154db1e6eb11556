#pragma once

#include <windows.h>

#include <functional>

namespace qm::platform::win32 {

// Ten seconds at most; false when the condition never held.
inline bool WaitUntil(const std::function<bool()>& condition) {
  for (int attempt = 0; attempt < 2000; ++attempt, Sleep(5))
    if (condition()) return true;
  return false;
}

}  // namespace qm::platform::win32
