#pragma once
// A page as hosts print them: 60 fields in 8 font mixes, which change from field to field, in three
// alignments. Every word of it is unique, so that it can be found again on the printed page.
// Units: twips.

#include <string>
#include <vector>

#include "platform/surface.h"

namespace qm::bench {

enum class Alignment { Left, Right, Centre };

struct SceneField {
  platform::Font font;
  std::int32_t color = 0;
  double left = 0;
  double top = 0;
  double width = 0;
  Alignment alignment = Alignment::Left;
  std::u16string text;
};

inline std::u16string SceneText(int number) {
  constexpr std::u16string_view kWords[] = {u"1.234,",  u"Señor", u"Ref.", u"Fra.nº",
                                            u"97.531,", u"Peña",  u"Cía.", u"€"};
  const std::u16string digits = {static_cast<char16_t>(u'0' + number / 10),
                                 static_cast<char16_t>(u'0' + number % 10)};
  std::u16string text = std::u16string(kWords[number % 8]) + digits;
  if (number % 5 == 0) text += u" y/" + digits;
  return text;
}

inline std::vector<SceneField> Scene(double rowHeight = 400) {
  const platform::Font mixes[] = {{u"Arial", 10},
                                  {u"Times New Roman", 12},
                                  {u"Courier New", 10},
                                  {u"Arial", 10, true},
                                  {u"Times New Roman", 9, false, true},
                                  {u"Courier New", 8.25, true},
                                  {u"Arial", 14, false, false, true},
                                  {u"Times New Roman", 11, true}};
  constexpr Alignment kAlignments[] = {Alignment::Left, Alignment::Right, Alignment::Centre};
  constexpr int kColumns = 5;
  constexpr double kColumnWidth = 2080;
  std::vector<SceneField> fields;
  for (int i = 0; i < 60; ++i) {
    fields.push_back({.font = mixes[i % 8],
                      .color = i % 7 == 0 ? 0xC00000 : 0,
                      .left = 40 + i % kColumns * kColumnWidth,
                      .top = 20 + i / kColumns * rowHeight,
                      .width = 2000,
                      .alignment = kAlignments[i % 3],
                      .text = SceneText(i)});
  }
  return fields;
}

inline void Draw(platform::Surface& surface, const std::vector<SceneField>& fields) {
  for (const SceneField& field : fields) {
    surface.SetFont(field.font);
    surface.SetForeColor(field.color);
    double x = field.left;
    if (field.alignment != Alignment::Left) {
      const double spare = field.width - surface.Measure(field.text).Width();
      x += field.alignment == Alignment::Right ? spare : spare / 2;
    }
    surface.PrintText({x, field.top}, field.text);
  }
}

}  // namespace qm::bench
