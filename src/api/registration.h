#pragma once
// The component's entries in the registry. The x64 and the x86 library are registered side by side: classes
// in the part of their bitness, names and interfaces shared, so that either can go without the other.

#include <windows.h>

namespace qm::api {

enum class Scope { Machine, User };

// All entries or none. Needs the right to write them: administrators for Scope::Machine.
[[nodiscard]] HRESULT Register(Scope scope) noexcept;
[[nodiscard]] HRESULT Unregister(Scope scope) noexcept;

}  // namespace qm::api
