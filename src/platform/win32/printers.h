#pragma once
// The printers that the user sees, local and connected.

#include "platform/printers.h"

namespace qm::platform::win32 {

class Win32Printers : public Printers {
 public:
  [[nodiscard]] std::vector<std::u16string> DeviceNames() override;
  [[nodiscard]] std::unique_ptr<PrinterSurface> Open(std::u16string_view deviceName) override;
  [[nodiscard]] std::unique_ptr<PrinterSurface> OpenDefault() override;
  // In alphabetical order, without the faces turned for vertical writing.
  [[nodiscard]] std::vector<std::u16string> FontNames(std::u16string_view deviceName) override;
  [[nodiscard]] std::vector<std::int16_t> PaperCodes(std::u16string_view deviceName) override;
  [[nodiscard]] std::optional<PageSize> PageOf(std::u16string_view deviceName, const Paper& paper) override;
};

}  // namespace qm::platform::win32
