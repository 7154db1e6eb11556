#pragma once
// The texts of model files as numbers and Booleans, and texts fitted to a field's box.
// Units:  twips. Errors: none of their own.

#include <string>
#include <string_view>
#include <vector>

#include "platform/surface.h"
#include "runtime/locale.h"

namespace qm::text {

// Reads "8,25", "8.25" and "1.234,5" alike, whatever the locale wrote; 0 for anything else.
[[nodiscard]] double ParseNumber(std::u16string_view text, const runtime::Locale& locale);
// Centimetres as users type them and settings keep them: a lone comma is the decimal sign in every locale
// ("29,50"), all else is read as ParseNumber does.
[[nodiscard]] double ParseCentimetres(std::u16string_view text, const runtime::Locale& locale);
// The locale's Boolean words and numbers; besides them "TRUE" and "VERDADERO" in any case.
[[nodiscard]] bool ParseBoolean(std::u16string_view text, const runtime::Locale& locale);

[[nodiscard]] bool HasDigit(std::u16string_view text);
// Spanish letters at their places of the DOS Latin-1 code page, for fonts with that layout.
[[nodiscard]] std::u16string ToOemLetters(std::u16string_view text);

// "" for zero, else the value by the mask.
[[nodiscard]] std::u16string FormatNonZero(double value, std::u16string_view mask,
                                           const runtime::Locale& locale);

// A line of text with the width and height it was measured with.
struct Line {
  std::u16string text;
  double width = 0;
  double height = 0;
};

// The text cut to the width and to the page's right edge; with pad a short one is filled up with "X".
// One measuring call, with pad one more for the "X".
[[nodiscard]] Line FitLine(platform::Surface& surface, std::u16string_view text, double width, double left,
                           bool pad);
// The lines into which the text breaks at its blanks for a box of the width. One measuring call, and time
// that grows with the text's length only.
[[nodiscard]] std::vector<Line> SplitLines(platform::Surface& surface, std::u16string_view text,
                                           double width);

}  // namespace qm::text
