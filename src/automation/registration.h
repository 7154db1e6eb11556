#pragma once
// A library's entries in the registry, for the file that this code is in. The x64 and the x86 library are
// registered side by side: classes in the part of their bitness, names and interfaces shared, so that either
// can go without the other.

#include <windows.h>

#include "automation/typelib/description.h"

namespace qm::automation {

enum class Scope { Machine, User };

// All entries or none. Needs the right to write them: administrators for Scope::Machine.
[[nodiscard]] HRESULT Register(const Library& library, Scope scope) noexcept;
[[nodiscard]] HRESULT Unregister(const Library& library, Scope scope) noexcept;

}  // namespace qm::automation
