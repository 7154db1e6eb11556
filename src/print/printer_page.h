#pragma once
// What every engine does around the fields of a page: the printer, its paper, the background, a failing
// printer. Units:  twips. Errors: 482 for a printer that cannot be opened or started, 481 for a background
// that is no picture.

#include <memory>
#include <utility>

#include "platform/printers.h"
#include "print/engine.h"
#include "print/page_settings.h"
#include "runtime/error.h"

namespace qm::print {

[[nodiscard]] std::unique_ptr<platform::PrinterSurface> OpenPrinter(const PageSettings& settings,
                                                                    const Environment& environment);

// Sets the paper, as a form of the spooler where there are such, and starts a print job on it.
void BeginJob(platform::PrinterSurface& printer, double pageWidth, double pageHeight,
              const Environment& environment);

// The model's background; nothing where it has none.
[[nodiscard]] std::unique_ptr<platform::Picture> LoadBackground(const PageSettings& settings,
                                                                const Environment& environment);
// At the page's origin and at its own size.
void PaintBackground(platform::Surface& surface, const platform::Picture* background);

// A printer that fails while fields are drawn ends them quietly: the page goes out as it stands.
template <typename DrawFields>
void UntilThePrinterFails(DrawFields&& drawFields) {
  try {
    std::forward<DrawFields>(drawFields)();
  } catch (const runtime::RuntimeError& error) {
    if (!error.Is(runtime::ErrorNumber::PrinterError)) throw;
  }
}

}  // namespace qm::print
