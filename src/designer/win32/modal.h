#pragma once
// The message loop of a window that is modal within a call of the host.

#include "platform/win32/wide.h"

namespace qm::designer::win32 {

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
