#pragma once
// What a record file holds, as a plain value.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace qm::recordfile {

inline constexpr std::size_t kMostFields = 32767;

struct FieldDefinition {
  std::u16string name;
  std::int16_t type = 0;  // the host's type code: 5 is a date

  bool operator==(const FieldDefinition&) const = default;
};

using Record = std::vector<std::u16string>;  // a text for each field

struct Table {
  std::u16string name;
  std::vector<FieldDefinition> fields;  // 1 to kMostFields
  std::vector<Record> records;

  bool operator==(const Table&) const = default;
};

}  // namespace qm::recordfile
