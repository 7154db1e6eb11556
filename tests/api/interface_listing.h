#pragma once
// A type library as a text that a person can review: one line for every function, in vtable order.

#include <windows.h>

#include <oaidl.h>

#include <string>

namespace qm::tests {

// Vtable places are slots, so that the listings of both bitnesses agree; "?" marks an offset between slots.
[[nodiscard]] std::string ListInterface(ITypeLib& library);

}  // namespace qm::tests
