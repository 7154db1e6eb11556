#pragma once
// An archiver that writes down what it is asked to add, and ends as it is told.

#include <string>
#include <vector>

#include "platform/archiver.h"

namespace qm::fakes {

class RecordedArchiver : public platform::Archiver {
 public:
  struct Run {
    std::u16string archive;
    std::vector<std::u16string> files;

    bool operator==(const Run&) const = default;
  };

  std::vector<Run> runs;
  platform::ZipResult result = platform::ZipResult::Done;

  [[nodiscard]] platform::ZipResult Add(std::u16string_view archive,
                                        const std::vector<std::u16string>& files) override {
    runs.push_back({std::u16string(archive), files});
    return result;
  }
};

}  // namespace qm::fakes
