#pragma once
// What the user has set in Windows' regional settings, and the local time.

#include "platform/clock.h"
#include "runtime/locale.h"

namespace qm::platform::win32 {

[[nodiscard]] runtime::Locale UserLocale();

class Win32Clock : public Clock {
 public:
  [[nodiscard]] runtime::DateTime Now() override;
};

}  // namespace qm::platform::win32
