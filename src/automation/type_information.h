#pragma once
// A library's own type library, the one embedded in its file.

#include <windows.h>

#include <oaidl.h>

#include <string>

namespace qm::automation {

// Full path of the file that this code is in.
[[nodiscard]] std::wstring LibraryPath();

// The description of an interface or class.
[[nodiscard]] HRESULT TypeInformation(const GUID& id, ITypeInfo** information) noexcept;

}  // namespace qm::automation
