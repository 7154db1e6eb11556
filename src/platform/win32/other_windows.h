#pragma once
// The visible windows of this thread that are enabled, besides one; disabled for as long as a modal window
// stands before them.

#include <vector>

#include "platform/win32/wide.h"

namespace qm::platform::win32 {

class OtherWindows {
 public:
  explicit OtherWindows(HWND owner);  // Windows takes care of the owner itself
  OtherWindows(const OtherWindows&) = delete;
  OtherWindows& operator=(const OtherWindows&) = delete;
  ~OtherWindows() { Enable(); }

  void Enable();

 private:
  std::vector<HWND> windows_;
};

}  // namespace qm::platform::win32
