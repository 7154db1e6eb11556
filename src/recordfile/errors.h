#pragma once
// What record files raise besides the runtime's own errors (5, 9, 53, 58, and those of files).

#include <string_view>

namespace qm::recordfile {

enum class RecordFileError : int {
  Foreign = 50200,
  Damaged = 50201,
  Newer = 50202,
  NotOpen = 50203,
  NoRecord = 50204,
  Unstored = 50205,
  NoKey = 50206,
  ChangedMeanwhile = 50207,
  TooLarge = 50208,
};

// With the name of the file where the text ends in a colon.
[[noreturn]] void Throw(RecordFileError error, std::u16string_view path = {});

}  // namespace qm::recordfile
