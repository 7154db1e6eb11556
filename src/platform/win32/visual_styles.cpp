#include "platform/win32/visual_styles.h"

#include "platform/win32/module.h"

namespace qm::platform::win32 {
namespace {

constexpr WORD kManifestResource = 2;  // of a library that leaves its process's look alone

OwnedActivationContext ContextOfThisModule() {
  const std::u16string path = ModulePath();
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
  description.lpSource = Wide(path);
  description.lpResourceName = MAKEINTRESOURCEW(kManifestResource);
  description.hModule = ThisModule();
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
