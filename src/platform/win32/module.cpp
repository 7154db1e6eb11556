#include "platform/win32/module.h"

namespace qm::platform::win32 {

HINSTANCE ThisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&ThisModule), &module);
  return module;
}

std::u16string ModulePath() {
  std::u16string path(MAX_PATH, u'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(ThisModule(), WideBuffer(path), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

}  // namespace qm::platform::win32
