#pragma once
// The guard at the automation boundary: no exception leaves a method of a library.
// A RuntimeError becomes HRESULT 0x800A0000 + number with IErrorInfo, exhausted memory error 7, anything else
// error 51. Null pointers where the interface wants a place are error 5.

#include <windows.h>

#include <oaidl.h>

#include <string>
#include <utility>

#include "automation/typelib/description.h"
#include "runtime/error.h"

namespace qm::automation {

inline constexpr int kNoSuchMember = 438;
inline constexpr int kAutomationError = 440;

// Numbers below 0 are results that an object of the host raised and that go on as they are.
[[nodiscard]] constexpr HRESULT ResultOf(int errorNumber) noexcept {
  if (errorNumber < 0) return static_cast<HRESULT>(errorNumber);
  return static_cast<HRESULT>(0x800A0000u | (static_cast<unsigned>(errorNumber) & 0xFFFFu));
}

// Inside a catch clause: publishes the exception as the thread's error information.
[[nodiscard]] HRESULT ReportCurrentException(const Interface& face) noexcept;

// Throws what stands for a failing HRESULT of the automation library or of an object of the host.
void ThrowIfFailed(HRESULT result);

// The same for what an object raised with that text. A runtime's error keeps its number, any other failure
// its result.
[[noreturn]] void ThrowFailure(HRESULT result, std::u16string description);

template <class T>
T& Required(T* pointer) {
  if (!pointer) throw runtime::RuntimeError(runtime::ErrorNumber::InvalidArgument);
  return *pointer;
}

// The host may release its last reference while its own call runs: the call holds one.
class AliveDuringCall {
 public:
  explicit AliveDuringCall(IUnknown& object) noexcept : object_(object) { object_.AddRef(); }
  ~AliveDuringCall() { object_.Release(); }
  AliveDuringCall(const AliveDuringCall&) = delete;
  AliveDuringCall& operator=(const AliveDuringCall&) = delete;

 private:
  IUnknown& object_;
};

template <class Body>
HRESULT ComCall(IUnknown& object, const Interface& face, Body&& body) noexcept {
  const AliveDuringCall alive(object);
  SetErrorInfo(0, nullptr);
  try {
    std::forward<Body>(body)();
    return S_OK;
  } catch (...) {
    return ReportCurrentException(face);
  }
}

}  // namespace qm::automation
