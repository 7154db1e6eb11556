#pragma once
// Models to save, and what they are expected to read back as.

#include <random>
#include <string>

#include "model/document.h"

namespace qm::model {

inline FieldToSave SampleField(int key, std::u16string descripcion) {
  return {.key = key,
          .descripcion = std::move(descripcion),
          .top = 1440,
          .left = 567,
          .width = 2000.5F,
          .height = 240,
          .foreColor = 16711680,
          .bold = true,
          .fontSize = 8.25F,
          .fontItalic = false,
          .alignment = 1,
          .underline = true,
          .fontName = u"Arial"};
}

inline ModelToSave SampleModel(std::int32_t numero) {
  return {.numero = numero,
          .width = 11905.5F,
          .height = 16838,
          .copias = u"2",
          .printer = u"Impresora de facturación",
          .esEtiqueta = false,
          .imagen = u"",
          .imagenLogo = {},
          .fields = {SampleField(1, u"NOMBRE"), SampleField(3, u"#Año")}};
}

// Letters that are hard for XML, for the code page, or for both.
inline std::u16string RandomText(std::mt19937& random, unsigned longest) {
  static constexpr std::u16string_view kLetters =
      u"aZ09 ñÁ€\u0081·|;,.#?\"'<>&]]>--\t\n\r\u00A0\u0416\u65E5\U0001F600\u2028\uFFFD";
  std::u16string text;
  for (auto length = static_cast<unsigned>(random()) % (longest + 1); length > 0; --length) {
    const char16_t unit = kLetters[static_cast<std::size_t>(random()) % kLetters.size()];
    if ((unit & 0xF800) == 0xD800) {
      text += u"\U0001F600";
    } else {
      text += unit;
    }
  }
  return text;
}

}  // namespace qm::model
