#pragma once
// The page of scene.h as a host prints it: a print model with a field for each text, and the print job with
// the texts as the host's fields.

#include "bench/scene.h"
#include "data/fields.h"
#include "model/document.h"
#include "runtime/format.h"

namespace qm::bench {

inline std::u16string FieldName(std::size_t index) {
  return u"CAMPO " + runtime::ToText(static_cast<std::int32_t>(index));
}

inline void FillJob(data::PrintJob& job, const std::vector<SceneField>& scene) {
  for (std::size_t i = 0; i < scene.size(); ++i) data::AsignarCampo(job, FieldName(i), scene[i].text);
}

inline model::ModelToSave ModelOf(const std::vector<SceneField>& scene, const std::u16string& printer,
                                  double pageWidth, double pageHeight) {
  constexpr float kOneLine = 300;
  model::ModelToSave model;
  model.numero = 1;
  model.width = static_cast<float>(pageWidth);
  model.height = static_cast<float>(pageHeight);
  model.copias = u"1";
  model.printer = printer;
  for (std::size_t i = 0; i < scene.size(); ++i) {
    const SceneField& field = scene[i];
    model.fields.push_back({.key = static_cast<int>(i) + 1,
                            .descripcion = FieldName(i),
                            .top = static_cast<float>(field.top),
                            .left = static_cast<float>(field.left),
                            .width = static_cast<float>(field.width),
                            .height = kOneLine,
                            .foreColor = field.color,
                            .bold = field.font.bold,
                            .fontSize = static_cast<float>(field.font.sizePoints),
                            .fontItalic = field.font.italic,
                            .alignment = static_cast<int>(field.alignment),
                            .underline = field.font.underline,
                            .fontName = field.font.name});
  }
  return model;
}

}  // namespace qm::bench
