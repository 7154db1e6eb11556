#pragma once
// Where a C++ host finds the component: the registry, or a side-by-side manifest.

#include <windows.h>

namespace hosts {

class ActivationContext {
 public:
  // The manifest's DLL is looked for in the folder. Null arguments: nothing is activated.
  ActivationContext(const wchar_t* manifest, const wchar_t* folder) {
    if (!manifest) return;
    ACTCTXW asked{};
    asked.cbSize = sizeof asked;
    asked.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
    asked.lpSource = manifest;
    asked.lpAssemblyDirectory = folder;
    context_ = CreateActCtxW(&asked);
    active_ = context_ != INVALID_HANDLE_VALUE && ActivateActCtx(context_, &cookie_);
  }
  ~ActivationContext() {
    if (active_) DeactivateActCtx(0, cookie_);
    if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
  }
  ActivationContext(const ActivationContext&) = delete;
  ActivationContext& operator=(const ActivationContext&) = delete;

  [[nodiscard]] bool Active() const { return active_; }

 private:
  HANDLE context_ = INVALID_HANDLE_VALUE;
  ULONG_PTR cookie_ = 0;
  bool active_ = false;
};

}  // namespace hosts
