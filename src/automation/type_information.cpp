#include "automation/type_information.h"

#include <oleauto.h>
#include <wrl/client.h>

#include <new>

namespace qm::automation {

std::wstring LibraryPath() {
  HMODULE library = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&LibraryPath), &library);
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(library, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

HRESULT TypeInformation(const GUID& id, ITypeInfo** information) noexcept {
  try {
    Microsoft::WRL::ComPtr<ITypeLib> library;
    const HRESULT loaded = LoadTypeLibEx(LibraryPath().c_str(), REGKIND_NONE, &library);
    return SUCCEEDED(loaded) ? library->GetTypeInfoOfGuid(id, information) : loaded;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace qm::automation
