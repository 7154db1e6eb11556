#pragma once
// The dialog CONFMEN, "Propiedades Avanzadas": it shows what the presenter holds and passes events on.
// Errors: those of platform/win32/dialog.h and of applying the values.

#include "designer/field_properties.h"

namespace qm::designer::win32 {

// Returns when the dialog is closed; with "Aceptar" the values are applied by then.
void ShowPropertiesDialog(FieldProperties& properties);

}  // namespace qm::designer::win32
