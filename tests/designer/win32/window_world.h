#pragma once
// The world of the designer's window under test: files in memory, real pictures made from them, a user who
// answers dialogs from a script.

#include <functional>
#include <memory>
#include <string>

#include "data/picker_menus.h"
#include "platform/win32/pictures.h"
#include "tests/designer/designing_world.h"

namespace qm::designer::win32 {

class PicturesFromMemory : public platform::Pictures {
 public:
  explicit PicturesFromMemory(platform::Files& files) : files_(files) {}
  [[nodiscard]] std::unique_ptr<platform::Picture> Load(std::u16string_view path) override {
    const auto bytes = files_.Read(path);
    if (!bytes) throw runtime::RuntimeError(runtime::ErrorNumber::FileNotFound);
    return Decode(*bytes);
  }
  [[nodiscard]] std::unique_ptr<platform::Picture> Decode(std::string_view bytes) override {
    return pictures_.Decode(bytes);
  }
  [[nodiscard]] std::unique_ptr<platform::Picture> Scaled(const platform::Picture& picture, int width,
                                                          int height) override {
    return pictures_.Scaled(picture, width, height);
  }
  [[nodiscard]] std::unique_ptr<platform::Picture> ThroughClipboard(
      const platform::Picture& picture) override {
    return pictures_.ThroughClipboard(picture);
  }

 private:
  platform::Files& files_;
  platform::win32::Win32Pictures pictures_;
};

struct WindowWorld : DesigningWorld {
  WindowWorld() {
    modelFile.SetName(kModels);
    files.contents[std::u16string(kModels)] = "";
    spooler.supportsForms = true;
  }

  static constexpr std::u16string_view kModels = u"C:\\Modelos\\facturas.xml";

  PicturesFromMemory realPictures{files};
  print::Environment realPrinting{files,    printers, spooler,   realPictures, prompts,
                                  settings, clock,    modelFile, paperForms,   runtime::Locale::Spanish()};
  Environment world{realPrinting, dialogs, folders, processes};
  data::PickerMenus menus;

  void Keep(const std::string& models) { files.contents[std::u16string(kModels)] = models; }
  [[nodiscard]] const std::string& Kept() const { return files.contents.find(kModels)->second; }
};

// A model file with one model of the page 11340 by 5670 twips (20 by 10 cm).
inline std::string ModelFile(const std::string& fields, const std::string& attributes = "", int number = 1) {
  return "<Modelos><Modelo Numero=\"" + std::to_string(number) +
         "\" Width=\"11340\" Height=\"5670\" Copias=\"1\" EsEtiqueta=\"0\" Logo=\"0\"" + attributes + ">" +
         fields + "</Modelo></Modelos>";
}

inline std::string Campo(const std::string& descripcion, int left, int top, int width, int height) {
  const auto element = [](const std::string& name, const std::string& text) {
    return "<" + name + ">" + text + "</" + name + ">";
  };
  return "<Campo Key=\"1\">" + element("Descripcion", descripcion) + element("Top", std::to_string(top)) +
         element("Left", std::to_string(left)) + element("Width", std::to_string(width)) +
         element("Height", std::to_string(height)) + "</Campo>";
}

}  // namespace qm::designer::win32
