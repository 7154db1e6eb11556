#pragma once
// The installed printers, what they offer, and a printer as a drawing surface.
// Units:  twips.
// Errors: RuntimeError 482 when a printer cannot be opened or fails.
// Implemented by win32/printers and the tests' FakePrinters.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/surface.h"

namespace qm::platform {

// The paper of a print job: the spooler's code where the form could be defined. With a code of 0 the printer
// takes, in this order, its own paper of that name and size (within 1 mm), one of that size, or the width
// and height as they are.
struct Paper {
  std::int16_t code = 0;
  std::u16string formName;
  double widthTwips = 0;
  double heightTwips = 0;
};

struct PageSize {
  double widthTwips = 0;
  double heightTwips = 0;

  bool operator==(const PageSize&) const = default;
};

// One print job at a time: the first text or picture starts the job, NewPage ends its page and begins the
// next, EndDoc sends it. A job that is not ended is thrown away with the surface.
class PrinterSurface : public Surface {
 public:
  [[nodiscard]] virtual std::u16string DeviceName() const = 0;
  virtual void SetPaper(const Paper& paper) = 0;  // between jobs
  virtual void NewPage() = 0;                     // within a job
  virtual void EndDoc() = 0;
};

class Printers {
 public:
  virtual ~Printers() = default;

  [[nodiscard]] virtual std::vector<std::u16string> DeviceNames() = 0;  // in the system's order
  [[nodiscard]] virtual std::unique_ptr<PrinterSurface> Open(std::u16string_view deviceName) = 0;
  [[nodiscard]] virtual std::unique_ptr<PrinterSurface> OpenDefault() = 0;

  // The names of the faces on offer, after the one that the printer begins with, which stands first and once
  // more among them.
  [[nodiscard]] virtual std::vector<std::u16string> FontNames(std::u16string_view deviceName) = 0;
  // The codes of the papers that the printer takes.
  [[nodiscard]] virtual std::vector<std::int16_t> PaperCodes(std::u16string_view deviceName) = 0;
  // The whole page, with its unprintable edges, that the printer has with that paper. Nothing when it refuses
  // the paper's code; without a code it takes what it can get by name and size.
  [[nodiscard]] virtual std::optional<PageSize> PageOf(std::u16string_view deviceName,
                                                       const Paper& paper) = 0;
};

}  // namespace qm::platform
