#pragma once
// Texts made from the interface table: the C++ header for hosts (which the component's own classes implement)
// and the side-by-side manifests. All are UTF-8.

#include <guiddef.h>

#include <string>

namespace qm::api {

[[nodiscard]] std::string HostHeader();
[[nodiscard]] std::string Manifest(bool is64Bit);
// {XXXXXXXX-...} in capitals, as the registry has it.
[[nodiscard]] std::string BracedText(const GUID& id);

}  // namespace qm::api
