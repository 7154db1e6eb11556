#include "api/composition.h"

#include "automation/com_call.h"

namespace qm::api {

bool Composition::Imprimir(data::PrintJob& job) {
  const print::Environment environment = NewEnvironment();
  if (print::EsEtiqueta(job, environment)) automation::ThrowNotSupported();
  return print::Print(job, environment);
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
