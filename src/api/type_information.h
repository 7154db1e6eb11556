#pragma once
// The component's own type library, the one embedded in its file.

#include <windows.h>

#include <oaidl.h>

#include <string>

namespace qm::api {

// Full path of the component's file.
[[nodiscard]] std::wstring LibraryPath();

// The description of an interface or class.
[[nodiscard]] HRESULT TypeInformation(const GUID& id, ITypeInfo** information) noexcept;

}  // namespace qm::api
