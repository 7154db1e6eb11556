#pragma once
// The model that a print job asks for, found in the model file.
// Errors, in the order of the checks: 50101 no file was named, 50100 the file is empty or not there,
//         94 and 13 a number that is none, 91 a file that cannot be parsed, 50102 no model of that number.

#include "data/print_job.h"
#include "model/document.h"
#include "print/engine.h"

namespace qm::print {

// Nothing and "" stand for model 1. Errors: 94 and 13 as above.
[[nodiscard]] std::int32_t WantedModel(const data::PrintJob& job, const runtime::Locale& locale);

[[nodiscard]] model::ModelTexts FindCurrentModel(const data::PrintJob& job, const Environment& environment);

}  // namespace qm::print
