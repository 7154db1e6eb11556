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

struct Element {
  Text name;
  void (*read)(FieldState& field, Text text, const Locale& locale);
};

// In the order in which the designer writes them.
constexpr Element kElements[] = {
    {u"Descripcion", [](FieldState& field, Text text, const Locale&) { field.descripcion = text; }},
    {u"Top", [](FieldState& field, Text text, const Locale&) { field.top = LeadingInteger(text); }},
    {u"Left", [](FieldState& field, Text text, const Locale&) { field.left = LeadingInteger(text); }},
    {u"Width", [](FieldState& field, Text text, const Locale&) { field.width = LeadingInteger(text); }},
    {u"Height",
     [](FieldState& field, Text text, const Locale& locale) { field.height = runtime::CInt(text, locale); }},
    {u"ForeColor", [](FieldState& field, Text text,
                      const Locale& locale) { field.foreColor = runtime::CLng(text, locale); }},
    {u"Bold", [](FieldState& field, Text text,
                 const Locale& locale) { field.font.bold = text::ParseBoolean(text, locale); }},
    {u"FontSize", ReadFontSize},
    {u"FontItalic", [](FieldState& field, Text text,
                       const Locale& locale) { field.font.italic = text::ParseBoolean(text, locale); }},
    {u"Alignment",
     [](FieldState& field, Text text, const Locale&) { field.alignment = LeadingInteger(text); }},
    {u"Underline", [](FieldState& field, Text text,
                      const Locale& locale) { field.font.underline = text::ParseBoolean(text, locale); }},
    {u"FontName", [](FieldState& field, Text text, const Locale&) { field.font.name = text; }},
};

}  // namespace

void ReadField(const std::vector<model::Property>& children, const Locale& locale, FieldState& field) {
  for (const model::Property& child : children) {
    const auto element = std::find_if(std::begin(kElements), std::end(kElements),
                                      [&](const Element& known) { return known.name == child.name; });
    if (element != std::end(kElements)) element->read(field, child.text, locale);
  }
}

}  // namespace qm::print
