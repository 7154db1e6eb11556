#pragma once
// Makes the component's objects for COM.

#include <windows.h>

#include <unknwn.h>

namespace qm::api {

// The factory of a class of the component; CLASS_E_CLASSNOTAVAILABLE for other classes.
[[nodiscard]] HRESULT GetClassFactory(REFCLSID classId, REFIID id, void** factory) noexcept;

}  // namespace qm::api
