#pragma once
// A table as the bytes of a record file, and back; docs/formats.md describes them.
// Whatever the bytes are, reading ends with a table or with the flaw that it found, and a table that was read
// is written as the same bytes.

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "recordfile/table.h"

namespace qm::recordfile {

enum class Flaw {
  Foreign,  // no record file at all
  Newer,    // of a version that this one does not know
  Damaged,  // cut short, changed, or with something behind its end
};

inline constexpr std::size_t kHeaderSize = 20;

[[nodiscard]] std::variant<Table, Flaw> Decode(std::string_view bytes);
// Every record must have a text for each field.
[[nodiscard]] std::string Encode(const Table& table);
// The file of such a body.
[[nodiscard]] std::string WithHeader(std::string_view body);

}  // namespace qm::recordfile
