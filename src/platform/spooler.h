#pragma once
// The paper forms of the print spooler. Every operation opens the printer itself; no handle is kept.
// Units:  thousandths of a millimetre.
// Errors: as values; nothing is raised.
// Implemented by win32/spooler and the tests' ScriptedSpooler.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qm::platform {

struct PaperForm {
  std::u16string name;
  std::int32_t width = 0;
  std::int32_t height = 0;  // the imageable area is the whole form
};

struct SpoolerOutcome {
  bool opened = false;      // the printer could be opened
  std::uint32_t error = 0;  // the system's last error when the operation failed, else 0
};

class Spooler {
 public:
  virtual ~Spooler() = default;

  // Custom forms exist on the NT platform family only.
  [[nodiscard]] virtual bool SupportsForms() const = 0;
  // In the printer's own order; nothing when the printer cannot be opened.
  [[nodiscard]] virtual std::optional<std::vector<std::u16string>> FormNames(std::u16string_view device) = 0;
  virtual SpoolerOutcome AddForm(std::u16string_view device, const PaperForm& form) = 0;
  virtual SpoolerOutcome DeleteForm(std::u16string_view device, std::u16string_view name) = 0;
};

}  // namespace qm::platform
