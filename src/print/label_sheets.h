#pragma once
// The label-sheet engine: a model that is one label, printed for every row of the job's table in a grid that
// the user chooses, as many sheets as it takes.
// Units:  twips.
// Errors: those of the print engine and of the label options.

#include "print/engine.h"

namespace qm::print {

// Prints every copy of all labels, each as a print job of its own. False when the user ended it early. Rows
// end at the first that was never filled; without any there is nothing to print, and no blank sheet.
[[nodiscard]] bool PrintLabels(data::PrintJob& job, const Environment& environment,
                               const model::ModelTexts& model);

}  // namespace qm::print
