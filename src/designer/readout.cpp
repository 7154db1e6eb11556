#include "designer/readout.h"

#include "runtime/format.h"

namespace qm::designer {

std::u16string Readout(const Box& box, const runtime::Locale& locale) {
  const auto centimetres = [&locale](float twips) {
    return runtime::Format(static_cast<double>(twips / kTwipsPerCm), u"###,###.00", locale);
  };
  // One accent only: that is how clerks know the line.
  return u"Posicion Ancho:" + centimetres(box.left) + u"; Posición Alto:" + centimetres(box.top);
}

}  // namespace qm::designer
