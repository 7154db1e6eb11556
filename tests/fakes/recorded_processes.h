#pragma once
// Programs that are never started; every start is written down. The next ones can be told to fail.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/processes.h"
#include "runtime/error.h"

namespace qm::fakes {

class RecordedProcesses : public platform::Processes {
 public:
  struct Start {
    std::u16string program;
    std::u16string arguments;
    bool hidden = false;

    bool operator==(const Start&) const = default;
  };

  std::vector<Start> starts;
  std::optional<runtime::ErrorNumber> failWith;

  void StartHidden(std::u16string_view program, std::u16string_view arguments) override {
    Record(program, arguments, true);
  }
  void RunAndWait(std::u16string_view program, std::u16string_view arguments) override {
    Record(program, arguments, false);
  }

 private:
  void Record(std::u16string_view program, std::u16string_view arguments, bool hidden) {
    if (failWith) throw runtime::RuntimeError(*failWith);
    starts.push_back({std::u16string(program), std::u16string(arguments), hidden});
  }
};

}  // namespace qm::fakes
