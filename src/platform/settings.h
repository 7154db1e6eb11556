#pragma once
// The user's settings of this system: texts by section and key, kept from one run to the next.
// Errors: reading has none; what cannot be saved is RuntimeError 70 (permission denied) or 75.
// Implemented by win32/settings and the tests' FakeSettings.

#include <string>
#include <string_view>

namespace qm::platform {

class Settings {
 public:
  virtual ~Settings() = default;

  // An empty section is the application's own. The default stands for a setting that was never saved or is
  // no text.
  [[nodiscard]] virtual std::u16string Read(std::u16string_view section, std::u16string_view key,
                                            std::u16string_view defaultText) = 0;
  virtual void Save(std::u16string_view section, std::u16string_view key, std::u16string_view text) = 0;
};

}  // namespace qm::platform
