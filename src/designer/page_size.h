#pragma once
// The page size as the boxes Ancho and Alto give it, and the canvas that follows from it.
// Units:  centimetres in the boxes, twips on the canvas and in the model file.
// Errors: none; a text that is no number counts as 0.

#include <string>
#include <string_view>

#include "designer/layout.h"
#include "runtime/locale.h"

namespace qm::designer {

// A box's text for a length, and back.
[[nodiscard]] std::u16string BoxText(double twips, const runtime::Locale& locale);
[[nodiscard]] float CentimetresOf(std::u16string_view boxText, const runtime::Locale& locale);

// 567 twips a centimetre. The text of a box has seven digits: what they cannot tell from a whole twip is one.
[[nodiscard]] float TwipsOf(float centimetres);

struct TooLarge {
  bool width = false;
  bool height = false;
};

// AjustarPageSize and AjustarLienzo: the page size and the canvas, but not the texts of the boxes. A side of
// 50 cm or more is too large and falls back; a canvas keeps its side where the page has none.
TooLarge SetPageSize(Layout& layout, float widthCm, float heightCm);

}  // namespace qm::designer
