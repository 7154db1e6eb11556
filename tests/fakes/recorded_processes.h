#pragma once
// Programs that are never started, only written down; the next ones can be told to fail or to do something
// while they are waited for.

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/processes.h"
#include "runtime/error.h"

namespace qm::fakes {

class RecordedProcesses : public platform::Processes {
 public:
  struct Started {
    std::u16string program;
    std::u16string arguments;
    bool waitedFor = false;
    bool operator==(const Started&) const = default;
  };

  std::vector<Started> started;
  std::optional<runtime::ErrorNumber> failWith;
  std::function<void()> whileRunning;  // of the programs that are waited for

  void StartHidden(std::u16string_view program, std::u16string_view arguments) override {
    Start(program, arguments, false);
  }
  void RunAndWait(std::u16string_view program, std::u16string_view arguments) override {
    Start(program, arguments, true);
    if (whileRunning) whileRunning();
  }

 private:
  void Start(std::u16string_view program, std::u16string_view arguments, bool waitedFor) {
    if (failWith) throw runtime::RuntimeError(*failWith);
    started.push_back({std::u16string(program), std::u16string(arguments), waitedFor});
  }
};

}  // namespace qm::fakes
