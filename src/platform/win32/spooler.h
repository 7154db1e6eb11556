#pragma once
// The forms of Windows' print spooler. Forms are added and deleted with the right to administer the printer;
// where the user lacks it, the spooler's refusal comes back as the outcome's error.

#include "platform/spooler.h"

namespace qm::platform::win32 {

class Win32Spooler : public Spooler {
 public:
  [[nodiscard]] bool SupportsForms() const override;
  [[nodiscard]] std::optional<std::vector<std::u16string>> FormNames(std::u16string_view device) override;
  SpoolerOutcome AddForm(std::u16string_view device, const PaperForm& form) override;
  SpoolerOutcome DeleteForm(std::u16string_view device, std::u16string_view name) override;
};

}  // namespace qm::platform::win32
