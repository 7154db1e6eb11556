#pragma once
// A late-bound call of an object of the host.
// Errors: what the object raises, with its number and text; 438 for a member that it lacks.

#include <windows.h>

#include <oaidl.h>

namespace qm::automation {

// With one argument or none, with a result or none.
void InvokeObject(IDispatch& object, DISPID id, WORD flags, VARIANT* argument, VARIANT* result);

// In any case of its letters; error 438 where there is no member of that name.
[[nodiscard]] DISPID IdOfMember(IDispatch& object, const wchar_t* name);

}  // namespace qm::automation
