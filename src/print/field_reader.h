#pragma once
// A field of a model as the engines hold it while they go through the model.
// Units:  twips; fonts in points, above 0 and at most kLargestFontSize.
// Errors: 13 and 6 for `Height` and `ForeColor` texts that are no number in the user's locale or do not fit,
//         6 for `Top`, `Left`, `Width` and `Alignment` that do not fit 16 bits.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/document.h"
#include "platform/surface.h"
#include "runtime/locale.h"

namespace qm::print {

inline constexpr std::int16_t kAlignRight = 1;
inline constexpr std::int16_t kAlignCentre = 2;  // any other code is left

inline constexpr double kLargestFontSize = 2160;

// One for a whole run: what a `Campo` does not say, it has from the `Campo` before it, also from the last one
// of the previous copy.
struct FieldState {
  std::u16string descripcion;
  std::int16_t top = 0;
  std::int16_t left = 0;
  std::int16_t width = 0;
  std::int16_t height = 0;
  std::int16_t alignment = 0;
  platform::Font font;
  std::optional<std::int32_t> foreColor;  // nothing: the surface's own
};

// Reads what a `Campo` says into the field.
void ReadField(const std::vector<model::FieldText>& elements, const runtime::Locale& locale,
               FieldState& field);

}  // namespace qm::print
