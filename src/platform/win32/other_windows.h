#pragma once
// The windows of this thread while something else has the user's attention.

#include <vector>

#include "platform/win32/wide.h"

namespace qm::platform::win32 {

// The visible windows of this thread that are enabled, besides one; disabled for as long as a modal window
// stands before them.
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

// Brings the window that is active now to the front again, once it is enabled.
class ActiveAgain {
 public:
  ActiveAgain() : window_(GetActiveWindow()) {}
  ActiveAgain(const ActiveAgain&) = delete;
  ActiveAgain& operator=(const ActiveAgain&) = delete;
  ~ActiveAgain() {
    if (window_ && IsWindow(window_)) SetForegroundWindow(window_);
  }

 private:
  HWND window_;
};

}  // namespace qm::platform::win32
