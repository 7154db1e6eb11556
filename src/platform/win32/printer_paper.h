#pragma once
// The papers of a printer, and the choice of one by size.
// Units:  tenths of a millimetre, as printer drivers have them; a Paper is in twips.
// Errors: RuntimeError 482 when the printer cannot be opened or its driver refuses.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/printers.h"
#include "platform/win32/handles.h"

namespace qm::platform::win32 {

struct PrinterPaper {
  std::int16_t code = 0;
  std::u16string name;
  int width = 0;
  int height = 0;
};

[[nodiscard]] int TenthsOfMillimetre(double twips);

// The first paper of that name and size, else the first of that size; both within 1 mm and not turned.
[[nodiscard]] std::optional<std::int16_t> CodeOfSize(const Paper& paper,
                                                     const std::vector<PrinterPaper>& papers);

// The settings that a print job on one printer begins with: the user's own, until a paper is chosen.
class PrintSettings {
 public:
  explicit PrintSettings(const std::u16string& deviceName);

  // The user's own with another paper, in this order until the driver accepts: the paper's code, a paper of
  // the printer chosen by CodeOfSize, the width and height as they are. Sizes are meant upright, so all but
  // the code ask for portrait.
  void Choose(const Paper& paper);
  // The paper of that code and no other; false when the driver refuses it.
  [[nodiscard]] bool Take(std::int16_t code) { return Accepts(code, false); }
  [[nodiscard]] std::vector<PrinterPaper> Papers() const;
  [[nodiscard]] const DEVMODEW& Mode() const { return *reinterpret_cast<const DEVMODEW*>(mode_.data()); }

 private:
  [[nodiscard]] bool Accepts(std::int16_t code, bool upright);
  void TakeSize(const Paper& paper);
  // The settings as the driver completes them.
  [[nodiscard]] std::vector<std::byte> Completed(DEVMODEW* changed) const;

  std::u16string deviceName_;
  OwnedPrinter printer_;
  std::vector<std::byte> usersOwn_;  // a DEVMODEW and the driver's own data behind it
  std::vector<std::byte> mode_;      // likewise
};

}  // namespace qm::platform::win32
