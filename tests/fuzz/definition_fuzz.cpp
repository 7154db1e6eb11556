// Any bytes as a definition file: names of at most 23 characters, no more than 99 of them, or error 62; what
// is read is read the same when bytes that nobody counted follow.

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

#include "data/definition_file.h"
#include "runtime/error.h"

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

std::optional<qm::data::Definition> Parsed(std::string_view bytes) {
  try {
    return qm::data::ParseDefinition(bytes);
  } catch (const qm::runtime::RuntimeError& error) {
    Require(error.Is(qm::runtime::ErrorNumber::ReadPastEnd));
    return std::nullopt;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const auto definition = Parsed(bytes);
  if (!definition) return 0;
  Require(definition->names.size() <= 99);
  Require(definition->title.size() == (bytes.empty() ? 0 : 23));
  Require(bytes.size() >= (definition->names.empty() ? 0 : 31 + 33 * definition->names.size()));
  for (const std::u16string& name : definition->names) {
    Require(name.size() <= 23);
    const std::u16string cell = qm::data::CellName(name, qm::data::TableTag(definition->title));
    Require(cell.size() == name.size() + 8);
  }
  const auto longer = Parsed(bytes + "x");
  Require(bytes.empty() || (longer && longer->names == definition->names));
  return 0;
}
