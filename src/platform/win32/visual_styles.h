#pragma once
// The system's current look for windows made within a scope. The host's own windows and whatever it loads
// keep the look that the host chose. It comes from resource 2 of the module that this code is linked into;
// without that resource windows look plain.

#include "platform/win32/handles.h"

namespace qm::platform::win32 {

class VisualStyles {
 public:
  VisualStyles();
  VisualStyles(const VisualStyles&) = delete;
  VisualStyles& operator=(const VisualStyles&) = delete;
  ~VisualStyles() = default;

 private:
  ActivatedContext active_;
};

}  // namespace qm::platform::win32
