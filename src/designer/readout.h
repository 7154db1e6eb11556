#pragma once
// The position of a field as the clerk reads it below the page settings, in centimetres.

#include <string>

#include "designer/layout.h"
#include "runtime/locale.h"

namespace qm::designer {

// "Posicion Ancho:2,00; Posición Alto:,50"
[[nodiscard]] std::u16string Readout(const Box& box, const runtime::Locale& locale);

}  // namespace qm::designer
