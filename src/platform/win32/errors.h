#pragma once
// Failures of Windows as the runtime's numbered errors.

#include "platform/win32/wide.h"
#include "runtime/error.h"

namespace qm::platform::win32 {

// The runtime's number of a Windows error of a file operation; 75 for those it has no number for.
[[nodiscard]] runtime::ErrorNumber FileErrorNumber(DWORD windowsError) noexcept;

[[noreturn]] void ThrowFileError(DWORD windowsError);
[[noreturn]] void ThrowLastFileError();  // from GetLastError
[[noreturn]] void Throw(runtime::ErrorNumber number);

}  // namespace qm::platform::win32
