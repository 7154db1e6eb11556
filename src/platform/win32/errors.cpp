#include "platform/win32/errors.h"

#include <algorithm>
#include <iterator>

namespace qm::platform::win32 {
namespace {

using runtime::ErrorNumber;

struct Translation {
  DWORD windowsError;
  ErrorNumber number;
};

constexpr Translation kTranslations[] = {
    {ERROR_FILE_NOT_FOUND, ErrorNumber::FileNotFound},
    {ERROR_PATH_NOT_FOUND, ErrorNumber::PathNotFound},
    {ERROR_INVALID_DRIVE, ErrorNumber::PathNotFound},
    {ERROR_NOT_READY, ErrorNumber::PathNotFound},
    {ERROR_BAD_NETPATH, ErrorNumber::PathNotFound},
    {ERROR_BAD_NET_NAME, ErrorNumber::PathNotFound},
    {ERROR_BAD_PATHNAME, ErrorNumber::PathNotFound},
    {ERROR_FILENAME_EXCED_RANGE, ErrorNumber::PathNotFound},
    {ERROR_DIRECTORY, ErrorNumber::PathNotFound},
    {ERROR_SHARING_VIOLATION, ErrorNumber::PermissionDenied},
    {ERROR_LOCK_VIOLATION, ErrorNumber::PermissionDenied},
    {ERROR_USER_MAPPED_FILE, ErrorNumber::PermissionDenied},
    {ERROR_UNABLE_TO_REMOVE_REPLACED, ErrorNumber::PermissionDenied},
    {ERROR_UNABLE_TO_MOVE_REPLACEMENT, ErrorNumber::PermissionDenied},
    {ERROR_WRITE_PROTECT, ErrorNumber::PermissionDenied},
    {ERROR_DISK_FULL, ErrorNumber::DiskFull},
    {ERROR_HANDLE_DISK_FULL, ErrorNumber::DiskFull},
    {ERROR_NOT_ENOUGH_MEMORY, ErrorNumber::OutOfMemory},
    {ERROR_OUTOFMEMORY, ErrorNumber::OutOfMemory},
    {ERROR_CRC, ErrorNumber::InputOutput},
    {ERROR_IO_DEVICE, ErrorNumber::InputOutput},
    {ERROR_NETNAME_DELETED, ErrorNumber::InputOutput},
};

}  // namespace

ErrorNumber FileErrorNumber(DWORD windowsError) noexcept {
  const auto* found =
      std::find_if(std::begin(kTranslations), std::end(kTranslations),
                   [=](const Translation& entry) { return entry.windowsError == windowsError; });
  return found == std::end(kTranslations) ? ErrorNumber::PathFileAccess : found->number;
}

void ThrowFileError(DWORD windowsError) { Throw(FileErrorNumber(windowsError)); }
void ThrowLastFileError() { ThrowFileError(GetLastError()); }
void Throw(ErrorNumber number) { throw runtime::RuntimeError(number); }

}  // namespace qm::platform::win32
