#pragma once
// How labels lie on their sheet, as the user answers it; the answers are remembered for the next time.
// Units:  twips.
// Errors: 13 and 6 for a number of labels that is no number or does not fit 16 bits, before anything is
//         saved; those of saving (70, 75).

#include <cstdint>
#include <optional>

#include "print/engine.h"

namespace qm::print {

struct LabelOptions {
  std::int16_t across = 1;  // labels in a row, at least 1
  std::int16_t down = 1;    // rows on a sheet, at least 1
  double topMargin = 0;     // above each row
  double leftMargin = 0;    // of the sheet
  double sheetWidth = 0;
  double sheetHeight = 0;
};

// Nothing when the user cancelled; then nothing is saved.
[[nodiscard]] std::optional<LabelOptions> AskLabelOptions(const Environment& environment);

}  // namespace qm::print
