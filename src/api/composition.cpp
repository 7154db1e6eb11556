#include "api/composition.h"

#include "automation/com_call.h"
#include "print/model_choice.h"

namespace qm::api {

bool Composition::Imprimir(data::PrintJob& job) {
  const print::Environment environment = NewEnvironment();
  const model::ModelTexts model = print::FindCurrentModel(job, environment);
  if (print::EsEtiqueta(model)) automation::ThrowNotSupported();
  return print::Print(job, environment, model);
}

print::Environment Composition::NewEnvironment() {
  return {files_,     printers_,   spooler_,
          pictures_,  prompts_,    clock_,
          modelFile_, paperForms_, platform::win32::UserLocale()};
}

Composition& TheComposition() {
  static Composition composition;
  return composition;
}

}  // namespace qm::api
