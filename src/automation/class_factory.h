#pragma once
// Makes a library's objects for COM.

#include <windows.h>

#include <oaidl.h>

#include <span>

namespace qm::automation {

using Creator = IDispatch* (*)();

// A class that hosts create: its identity, and what makes a new object with one reference.
struct Creatable {
  const GUID& id;
  Creator create;
};

// The factory of one of the classes; CLASS_E_CLASSNOTAVAILABLE for others.
[[nodiscard]] HRESULT GetClassFactory(std::span<const Creatable> classes, REFCLSID classId, REFIID id,
                                      void** factory) noexcept;

}  // namespace qm::automation
