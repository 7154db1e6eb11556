#pragma once
// A world of fakes with a model file, in which a test opens the designer.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "designer/modelo_print.h"
#include "tests/designer/designing_world.h"
#include "tests/fakes/fake_view.h"

namespace qm::designer {

struct DesignerWorld : DesigningWorld {
  fakes::FakeView view;
  data::PickerMenus menus;
  std::unique_ptr<ModeloPrint> window;

  // Opens the window on that model; the former one is gone without a prompt.
  ModeloPrint& Open(std::int16_t numero = 1) {
    window = std::make_unique<ModeloPrint>(world, view, menus, numero);
    window->Form_Load();
    return *window;
  }

  [[nodiscard]] Document& Doc() { return window->TheDocument(); }
  [[nodiscard]] const Layout& Now() { return window->TheDocument().Current(); }
  [[nodiscard]] std::vector<std::u16string> Captions() {
    std::vector<std::u16string> captions;
    for (const FieldPointer& field : Now().men)
      if (field) captions.push_back(field->caption);
    return captions;
  }
  [[nodiscard]] std::string File() { return files.contents[modelFile.name]; }
  [[nodiscard]] std::vector<std::u16string> Told() {
    std::vector<std::u16string> texts;
    for (const auto& told : dialogs.told) texts.push_back(told.text);
    return texts;
  }
};

// A page of 20 by 10 cm with fields of these captions.
inline std::string ModelBytes(int numero, const std::vector<std::string_view>& captions,
                              std::string_view furtherAttributes = "") {
  std::string text = "<Modelo Numero=\"" + std::to_string(numero) + "\" Width=\"11340\" Height=\"5670\" ";
  text.append(furtherAttributes).append(">");
  for (const std::string_view caption : captions)
    text.append("<Campo><Descripcion>")
        .append(caption)
        .append("</Descripcion><Width>1000</Width><Height>300</Height></Campo>");
  return text + "</Modelo>";
}

inline std::string FileOf(const std::vector<std::string>& models) {
  std::string text = "<Modelos>";
  for (const std::string& model : models) text += model;
  return text + "</Modelos>";
}

}  // namespace qm::designer
