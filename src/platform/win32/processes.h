#pragma once
// Programs started by Windows. One with a folder in its name is that file and no other; a bare name is looked
// for in Windows' own order.

#include "platform/processes.h"

namespace qm::platform::win32 {

class Win32Processes : public Processes {
 public:
  void StartHidden(std::u16string_view program, std::u16string_view arguments) override;
  // The thread's windows take no input meanwhile. When the thread is asked to quit, it stops waiting.
  void RunAndWait(std::u16string_view program, std::u16string_view arguments) override;
};

}  // namespace qm::platform::win32
