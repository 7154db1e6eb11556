#pragma once
// Makes the component's objects for COM.

#include <unknwn.h>
#include <windows.h>

namespace qm::api {

// The factory of a class of the component; CLASS_E_CLASSNOTAVAILABLE for other classes.
[[nodiscard]] HRESULT GetClassFactory(REFCLSID classId, REFIID id, void** factory) noexcept;

}  // namespace qm::api
