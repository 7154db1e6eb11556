#pragma once
// What a model's own attributes say of its pages, with the printer settled with the user where needed.
// Units:  twips.
// Errors: none; an attribute that cannot be read keeps its previous value.

#include <cstdint>
#include <optional>
#include <string>

#include "data/print_job.h"
#include "model/document.h"
#include "print/engine.h"

namespace qm::print {

enum class Output { Printer, Drawing };

struct PageSettings {
  double width = 0;
  double height = 0;
  std::int16_t copies = 0;                   // a printed model that does not say has none
  std::optional<std::u16string> printer;     // an installed one; nothing is the default printer
  std::optional<std::u16string> background;  // the path of a picture that is there
};

// Nothing when the user ended the print at the choice of a printer. Only Output::Printer chooses one: the
// job remembers the substitute that the user gave.
[[nodiscard]] std::optional<PageSettings> ReadPageSettings(const model::ModelTexts& model,
                                                           data::PrintJob& job,
                                                           const Environment& environment, Output output);

}  // namespace qm::print
