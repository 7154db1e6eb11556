#include "print/field_reader.h"

#include <algorithm>

#include "print/text/text_helpers.h"
#include "runtime/numbers.h"

namespace qm::print {

namespace {

using runtime::Locale;
using Text = std::u16string_view;

// Some models hold sizes in hundredths of a point.
constexpr double kHundredthsAbove = 600;

std::int16_t LeadingInteger(Text text) { return runtime::CInt(runtime::Val(text)); }

// A text that is no size leaves the font as large as it was.
void ReadFontSize(FieldState& field, Text text, const Locale& locale) {
  double points = text::ParseNumber(text, locale);
  if (points > kHundredthsAbove) points /= 100;
  if (points > 0) field.font.sizePoints = std::min(points, kLargestFontSize);
}

void Read(FieldState& field, model::FieldElement element, Text text, const Locale& locale) {
  using enum model::FieldElement;
  switch (element) {
    case Descripcion:
      field.descripcion = text;
      break;
    case Top:
      field.top = LeadingInteger(text);
      break;
    case Left:
      field.left = LeadingInteger(text);
      break;
    case Width:
      field.width = LeadingInteger(text);
      break;
    case Height:
      field.height = runtime::CInt(text, locale);
      break;
    case ForeColor:
      field.foreColor = runtime::CLng(text, locale);
      break;
    case Bold:
      field.font.bold = text::ParseBoolean(text, locale);
      break;
    case FontSize:
      ReadFontSize(field, text, locale);
      break;
    case FontItalic:
      field.font.italic = text::ParseBoolean(text, locale);
      break;
    case Alignment:
      field.alignment = LeadingInteger(text);
      break;
    case Underline:
      field.font.underline = text::ParseBoolean(text, locale);
      break;
    case FontName:
      field.font.name = text;
      break;
  }
}

}  // namespace

void ReadField(const std::vector<model::FieldText>& elements, const Locale& locale, FieldState& field) {
  for (const auto& [element, text] : elements) Read(field, element, text, locale);
}

}  // namespace qm::print
