#pragma once
// Other programs, started by command line: the program, found as the system finds programs, a blank, and the
// arguments.
// Errors: 53 for a program that is not found, 5 for one that cannot be started.
// Implemented by win32/processes and the tests' RecordedProcesses.

#include <string_view>

namespace qm::platform {

class Processes {
 public:
  virtual ~Processes() = default;

  // Returns at once. A hidden program gets no window on the screen.
  virtual void StartHidden(std::u16string_view program, std::u16string_view arguments) = 0;
  // In a normal window with the focus; returns when the program has ended. The thread's windows go on
  // painting meanwhile.
  virtual void RunAndWait(std::u16string_view program, std::u16string_view arguments) = 0;
};

}  // namespace qm::platform
