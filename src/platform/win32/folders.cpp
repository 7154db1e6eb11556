#include "platform/win32/folders.h"

#include "platform/win32/errors.h"
#include "platform/win32/module.h"
#include "platform/win32/paths.h"
#include "platform/win32/wide.h"

#include <shlobj.h>

namespace qm::platform::win32 {
namespace {

using runtime::ErrorNumber;

constexpr DWORD kLongestUserName = 257;  // with its final zero

}  // namespace

std::u16string Win32Folders::CarpetaEspecial(int number) {
  wchar_t path[MAX_PATH] = L"";
  return SUCCEEDED(SHGetFolderPathW(nullptr, number, nullptr, SHGFP_TYPE_CURRENT, path)) ? Text(path)
                                                                                         : std::u16string();
}

std::u16string Win32Folders::LocalData() { return CarpetaEspecial(CSIDL_LOCAL_APPDATA); }

std::u16string Win32Folders::RutaTrabajo(std::u16string_view name) {
  std::u16string folder = LocalData();
  if (folder.empty()) Throw(ErrorNumber::PathNotFound);
  for (const std::u16string_view level : {u"\\Quillmar", u"\\CRM"}) {
    folder.append(level);
    Make(folder);  // what is there already stays as it is
  }
  return folder.append(u"\\").append(name);
}

std::u16string Win32Folders::ComponentFolder() {
  const std::u16string path = ModulePath();
  return path.substr(0, path.rfind(u'\\'));
}

std::u16string Win32Folders::UserName() {
  wchar_t name[kLongestUserName] = L"";
  DWORD length = kLongestUserName;  // afterwards the name's, with its final zero
  if (!GetUserNameW(name, &length) || length == 0) return {};
  return Text(name, length - 1);
}

void Win32Folders::SetCurrentFolder(std::u16string_view folder) {
  if (SetCurrentDirectoryW(Wide(std::u16string(folder)))) return;
  const DWORD error = GetLastError();
  Throw(error == ERROR_FILE_NOT_FOUND ? ErrorNumber::PathNotFound : FileErrorNumber(error));
}

std::u16string Win32Folders::FullPath(std::u16string_view path) { return AbsolutePath(path); }

bool Win32Folders::Matches(std::u16string_view pattern) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW(Wide(SystemPath(pattern)), &found);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  return true;
}

bool Win32Folders::Make(std::u16string_view folder) {
  return CreateDirectoryW(Wide(SystemPath(folder)), nullptr) != FALSE;
}

}  // namespace qm::platform::win32
