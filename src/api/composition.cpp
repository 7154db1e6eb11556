#include "api/composition.h"

#include "mail/profiles.h"
#include "print/label_sheets.h"
#include "print/model_choice.h"
#include "recordfile/field_list.h"

namespace qm::api {

Composition::Composition()
    : profiles_(files_, mail::kProfileTable, recordfile::ParseFieldList(mail::kProfileFieldList)) {}

bool Composition::Imprimir(data::PrintJob& job) {
  const print::Environment environment = NewEnvironment();
  const model::ModelTexts model = print::FindCurrentModel(job, environment);
  return print::EsEtiqueta(model) ? print::PrintLabels(job, environment, model)
                                  : print::Print(job, environment, model);
}

print::Environment Composition::NewEnvironment() {
  return {files_,    printers_, spooler_,   pictures_,   prompts_,
          settings_, clock_,    modelFile_, paperForms_, platform::win32::UserLocale()};
}

Composition& TheComposition() {
  static Composition composition;
  return composition;
}

}  // namespace qm::api
