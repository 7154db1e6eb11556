#include "api/composition.h"

#include <limits>

#include "designer/win32/show.h"
#include "mail/profiles.h"
#include "platform/win32/dialogs.h"
#include "print/label_sheets.h"
#include "print/model_choice.h"
#include "recordfile/field_list.h"
#include "runtime/error.h"

namespace qm::api {
namespace {

// The model that the designer shows first; what is no number of a model it takes for the first one.
std::int16_t FirstModel(const data::PrintJob& job, const runtime::Locale& locale) {
  try {
    const std::int32_t number = print::WantedModel(job, locale);
    return number > 0 && number <= std::numeric_limits<std::int16_t>::max()
               ? static_cast<std::int16_t>(number)
               : std::int16_t{1};
  } catch (const runtime::RuntimeError&) {
    return 1;
  }
}

}  // namespace

Composition::Composition()
    : profiles_(files_, mail::kProfileTable, recordfile::ParseFieldList(mail::kProfileFieldList)) {}

bool Composition::Imprimir(data::PrintJob& job) {
  const print::Environment environment = NewEnvironment();
  const model::ModelTexts model = print::FindCurrentModel(job, environment);
  return print::EsEtiqueta(model) ? print::PrintLabels(job, environment, model)
                                  : print::Print(job, environment, model);
}

void Composition::Show(data::PrintJob& job) {
  designer::win32::RequireNotShown();  // before the menus move the job's counter
  const data::PickerMenus menus = data::FillPickerMenus(job, files_);
  const print::Environment printing = NewEnvironment();
  platform::win32::Win32Dialogs dialogs;
  designer::win32::ShowModeloPrint({printing, dialogs, folders_, processes_}, menus,
                                   FirstModel(job, printing.locale));
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
