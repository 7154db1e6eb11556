#include "platform/win32/files.h"

#include <algorithm>
#include <vector>

#include "platform/win32/errors.h"
#include "platform/win32/handles.h"
#include "platform/win32/paths.h"

namespace qm::platform::win32 {
namespace {

using runtime::ErrorNumber;

constexpr DWORD kLargestTransfer = 16 * 1024 * 1024;

// A file's attributes, or nothing when there is none of that name.
std::optional<DWORD> AttributesOf(const std::u16string& systemPath) {
  const DWORD attributes = GetFileAttributesW(Wide(systemPath));
  if (attributes == INVALID_FILE_ATTRIBUTES) return std::nullopt;
  return attributes;
}

// Refuses, before anything is written, what Windows would refuse at the swap, and also what it would allow:
// a file that its user has protected.
void CheckReplaceable(const std::u16string& path) {
  const std::optional<DWORD> attributes = AttributesOf(path);
  if (!attributes) return;
  if (*attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) Throw(ErrorNumber::PathFileAccess);
  const OwnedFile opened(CreateFileW(Wide(path), DELETE,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                     OPEN_EXISTING, 0, nullptr));
  if (!opened) ThrowLastFileError();
}

// A file of our own beside another one; it goes when it has not taken the other's place.
class FileBeside {
 public:
  explicit FileBeside(const std::u16string& path) {
    for (int attempt = 0; !file_; ++attempt) {
      name_ = path + Suffix(attempt);
      file_.Reset(CreateFileW(Wide(name_), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL | FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
      if (!file_ && (GetLastError() != ERROR_FILE_EXISTS || attempt == kMostAttempts)) ThrowLastFileError();
    }
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;
  ~FileBeside() {
    file_.Reset();
    if (!kept_) DeleteFileW(Wide(name_));
  }

  void Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const auto part = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kLargestTransfer));
      DWORD written = 0;
      if (!WriteFile(file_.Get(), bytes.data(), part, &written, nullptr)) ThrowLastFileError();
      if (written == 0) Throw(ErrorNumber::DiskFull);
      bytes.remove_prefix(written);
    }
  }
  void Flush() {
    if (!FlushFileBuffers(file_.Get())) ThrowLastFileError();
  }

  // A move over the old file is one step, whoever dies meanwhile; ReplaceFile is several, and between them
  // there may be no file of that name.
  void TakeThePlaceOf(const std::u16string& path, DWORD writeThrough) {
    file_.Reset();
    if (AttributesOf(path)) CarryOverFrom(path);
    if (!MoveFileExW(Wide(name_), Wide(path), MOVEFILE_REPLACE_EXISTING | writeThrough)) {
      ReplaceWhileRead(path, GetLastError());
    }
    kept_ = true;
  }

 private:
  static constexpr int kMostAttempts = 100;

  static std::u16string Suffix(int attempt) {
    constexpr char16_t kDigits[] = u"0123456789ABCDEF";
    const std::uint32_t mark =
        GetCurrentProcessId() * 2654435761U + GetTickCount() * 101U + static_cast<std::uint32_t>(attempt);
    std::u16string suffix = u".";
    for (int shift = 28; shift >= 0; shift -= 4) suffix += kDigits[(mark >> shift) & 15U];
    return suffix + u".tmp";
  }

  // Who may do what with the old file holds for the new one; where a file system knows no such rights,
  // nothing is lost.
  void CarryOverFrom(const std::u16string& path) {
    DWORD size = 0;
    GetFileSecurityW(Wide(path), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<BYTE> rights(size);
    if (size > 0 && GetFileSecurityW(Wide(path), DACL_SECURITY_INFORMATION, rights.data(), size, &size)) {
      SetFileSecurityW(Wide(name_), DACL_SECURITY_INFORMATION, rights.data());
    }
    SetFileAttributesW(Wide(name_), *AttributesOf(path) | FILE_ATTRIBUTE_ARCHIVE);
  }

  // A file that somebody is reading cannot be moved over, but replaced.
  void ReplaceWhileRead(const std::u16string& path, DWORD error) {
    const bool inUse = error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
    if (!inUse || !AttributesOf(path)) ThrowFileError(error);
    if (ReplaceFileW(Wide(path), Wide(name_), nullptr,
                     REPLACEFILE_WRITE_THROUGH | REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)) {
      return;
    }
    error = GetLastError();
    if (AttributesOf(path)) ThrowFileError(error);
    kept_ = true;  // the old file was taken away before it failed: ours is the only copy
    if (!MoveFileExW(Wide(name_), Wide(path), MOVEFILE_WRITE_THROUGH)) ThrowLastFileError();
  }

  std::u16string name_;
  OwnedFile file_;
  bool kept_ = false;
};

OwnedFile OpenedForReading(std::u16string_view path, DWORD whetherToCreate) {
  return OwnedFile(CreateFileW(Wide(SystemPath(path)), GENERIC_READ,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                               whetherToCreate, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
}

LONGLONG SizeOf(const OwnedFile& file) {
  LARGE_INTEGER size{};
  if (!GetFileSizeEx(file.Get(), &size)) ThrowLastFileError();
  return size.QuadPart;
}

// From where the file stands; fewer bytes where it ends sooner.
std::string ReadUpTo(const OwnedFile& file, std::size_t most) {
  std::string bytes(most, '\0');
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const auto part = static_cast<DWORD>(std::min<std::size_t>(bytes.size() - filled, kLargestTransfer));
    DWORD read = 0;
    if (!ReadFile(file.Get(), bytes.data() + filled, part, &read, nullptr)) ThrowLastFileError();
    if (read == 0) break;
    filled += read;
  }
  bytes.resize(filled);
  return bytes;
}

}  // namespace

bool Win32Files::Exists(std::u16string_view path) {
  const std::optional<DWORD> attributes = AttributesOf(SystemPath(path));
  return attributes && (*attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::optional<std::string> Win32Files::Read(std::u16string_view path) {
  const OwnedFile file = OpenedForReading(path, OPEN_EXISTING);
  if (!file) {
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND) return std::nullopt;
    ThrowFileError(error);
  }
  if (SizeOf(file) > INT32_MAX) Throw(ErrorNumber::OutOfMemory);
  return ReadUpTo(file, static_cast<std::size_t>(SizeOf(file)));
}

std::string Win32Files::ReadOrCreate(std::u16string_view path, std::size_t most) {
  const OwnedFile file = OpenedForReading(path, OPEN_ALWAYS);
  if (!file) ThrowLastFileError();
  return ReadUpTo(file, most);
}

void Win32Files::Replace(std::u16string_view path, std::string_view bytes) {
  const std::u16string target = SystemPath(path);
  CheckReplaceable(target);
  FileBeside fresh(target);
  fresh.Write(bytes);
  fresh.Flush();
  fresh.TakeThePlaceOf(target, MOVEFILE_WRITE_THROUGH);
}

void Win32Files::ReplaceUnflushed(std::u16string_view path, std::string_view bytes) {
  const std::u16string target = SystemPath(path);
  CheckReplaceable(target);
  FileBeside fresh(target);
  fresh.Write(bytes);
  fresh.TakeThePlaceOf(target, 0);
}

void Win32Files::Delete(std::u16string_view path) {
  if (!DeleteFileW(Wide(SystemPath(path)))) ThrowLastFileError();
}

bool Win32Files::CanRead(std::u16string_view path) {
  return static_cast<bool>(OpenedForReading(path, OPEN_EXISTING));
}

void Win32Files::TryAppend(std::u16string_view path) {
  const OwnedFile file(CreateFileW(Wide(SystemPath(path)), FILE_APPEND_DATA,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                   FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) ThrowLastFileError();
}

std::optional<runtime::DateTime> Win32Files::LastChange(std::u16string_view path) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  SYSTEMTIME universal;
  SYSTEMTIME local;
  if (!GetFileAttributesExW(Wide(SystemPath(path)), GetFileExInfoStandard, &data) ||
      !FileTimeToSystemTime(&data.ftLastWriteTime, &universal) ||
      !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local)) {
    return std::nullopt;
  }
  return runtime::DateTime{local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
}

std::u16string Win32Files::ScratchFolder() {
  std::u16string folder(MAX_PATH + 1, u'\0');
  const DWORD length = GetTempPathW(static_cast<DWORD>(folder.size()), WideBuffer(folder));
  if (length == 0 || length > folder.size()) Throw(ErrorNumber::PathNotFound);
  folder.resize(length);
  return folder;
}

}  // namespace qm::platform::win32
