#include "platform/win32/visual_styles.h"

namespace qm::platform::win32 {
namespace {

constexpr WORD kManifestResource = 2;  // of a library that leaves its process's look alone

OwnedActivationContext ContextOfThisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&ContextOfThisModule), &module);
  wchar_t path[MAX_PATH * 4] = L"";
  GetModuleFileNameW(module, path, ARRAYSIZE(path) - 1);
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
  description.lpSource = path;
  description.lpResourceName = MAKEINTRESOURCEW(kManifestResource);
  description.hModule = module;
  return OwnedActivationContext(CreateActCtxW(&description));
}

HANDLE TheContext() {
  static const OwnedActivationContext context = ContextOfThisModule();
  return context.Get();
}

}  // namespace

// An invalid context is not activated, and then there is nothing to take back.
VisualStyles::VisualStyles() : active_(TheContext()) {}

}  // namespace qm::platform::win32
