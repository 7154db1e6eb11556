#pragma once
// The user's settings in the registry: HKEY_CURRENT_USER\Software\TALVO\<section>, texts.

#include "platform/settings.h"

namespace qm::platform::win32 {

class Win32Settings : public Settings {
 public:
  [[nodiscard]] std::u16string Read(std::u16string_view section, std::u16string_view key,
                                    std::u16string_view defaultText) override;
  void Save(std::u16string_view section, std::u16string_view key, std::u16string_view text) override;
};

}  // namespace qm::platform::win32
