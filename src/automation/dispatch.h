#pragma once
// Late-bound calls, made from the interface table: names to ids, and a call by id on the vtable.
// Arguments may come in any type that the runtime converts, by value or by reference; what a method changes
// in an argument goes back to where the host passed a reference. Named arguments are supported. What is wrong
// with the arguments is raised as the runtime's error, whose number script engines show as it is: 13 and 6
// for values, 94 for Null, 448 to 450 for names and counts. Needs no registered type library, neither the
// component's nor the record-file library's.

#include <windows.h>

#include <oaidl.h>

#include "automation/typelib/description.h"

namespace qm::automation {

[[nodiscard]] HRESULT IdsOfNames(const Interface& face, LPOLESTR* names, UINT count, DISPID* ids) noexcept;

[[nodiscard]] HRESULT InvokeMember(const Interface& face, IDispatch& object, DISPID id, WORD flags,
                                   const DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrongArgument) noexcept;

}  // namespace qm::automation
