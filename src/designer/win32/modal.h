#pragma once
// What makes a window modal within a call of the host: the thread's other windows rest until it is closed,
// and messages are taken from the queue here meanwhile.

#include <vector>

#include "platform/win32/wide.h"

namespace qm::designer::win32 {

// Visible windows of this thread that are enabled; disabled for a scope.
class RestingWindows {
 public:
  RestingWindows();
  RestingWindows(const RestingWindows&) = delete;
  RestingWindows& operator=(const RestingWindows&) = delete;
  ~RestingWindows() { Wake(); }

  // Before the window they rest for is destroyed, or Windows would activate another program's.
  void Wake();

 private:
  std::vector<HWND> windows_;
};

class ModalWindow {
 public:
  virtual ~ModalWindow() = default;
  [[nodiscard]] virtual bool Closed() const = 0;
  virtual bool Translate(MSG& message) = 0;  // true: the message is dealt with
  virtual bool Idle() = 0;                   // a little work while nothing happens; false: none left
  virtual void ProgramEnds() = 0;            // closes it
};

// Until the window is closed. The end of the program closes it and is passed on to the host's own loop.
void RunModal(ModalWindow& window);

}  // namespace qm::designer::win32
