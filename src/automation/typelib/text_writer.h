#pragma once
// Texts made from the interface table: the C++ header for hosts (which the library's own classes implement)
// and the side-by-side manifests. All are UTF-8.

#include <guiddef.h>

#include <span>
#include <string>

#include "automation/typelib/description.h"

namespace qm::automation {

[[nodiscard]] std::string HostHeader(const Library& library, std::span<const Interface* const> imports = {});
// For the file NAME.dll.
[[nodiscard]] std::string Manifest(const Library& library, const std::string& name, bool is64Bit);
// {XXXXXXXX-...} in capitals, as the registry has it.
[[nodiscard]] std::string BracedText(const GUID& id);

}  // namespace qm::automation
