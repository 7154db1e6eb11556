#pragma once
// The printers that the user sees, local and connected.

#include "platform/printers.h"

namespace qm::platform::win32 {

class Win32Printers : public Printers {
 public:
  [[nodiscard]] std::vector<std::u16string> DeviceNames() override;
  [[nodiscard]] std::unique_ptr<PrinterSurface> Open(std::u16string_view deviceName) override;
  [[nodiscard]] std::unique_ptr<PrinterSurface> OpenDefault() override;
};

}  // namespace qm::platform::win32
