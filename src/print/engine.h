#pragma once
// The print engine: composes one print model with the data of a print job. An action finds its model once
// (see model_choice.h) and hands it to whatever it needs of these.
// Units:  twips.
// Errors: 482 when the printer fails; errors of field texts and values as they are.

#include "data/print_job.h"
#include "model/model_file.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/printers.h"
#include "platform/prompts.h"
#include "platform/spooler.h"
#include "print/paper_forms.h"
#include "runtime/locale.h"

namespace qm::print {

// The world an engine works in.
struct Environment {
  platform::Files& files;
  platform::Printers& printers;
  platform::Spooler& spooler;
  platform::Pictures& pictures;
  platform::Prompts& prompts;
  platform::Clock& clock;
  const model::ModelFile& modelFile;
  PaperFormState& paperForms;
  runtime::Locale locale;
};

// Whether the model is a sheet of labels.
[[nodiscard]] bool EsEtiqueta(const model::ModelTexts& model);

// Prints every copy, each as a print job of its own. False when the user ended it early.
[[nodiscard]] bool Print(data::PrintJob& job, const Environment& environment, const model::ModelTexts& model);

// Draws the model once, without copy numbering, on a surface that is no printer.
[[nodiscard]] bool Draw(data::PrintJob& job, const Environment& environment, const model::ModelTexts& model,
                        platform::Surface& surface);

}  // namespace qm::print
