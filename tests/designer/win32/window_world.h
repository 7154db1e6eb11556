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
  WindowWorld() { files.contents[std::u16string(kModels)] = ""; }

  static constexpr std::u16string_view kModels = u"C:\\Modelos\\facturas.xml";

  PicturesFromMemory realPictures{files};
  print::Environment realPrinting{files,    printers, spooler,   realPictures, prompts,
                                  settings, clock,    modelFile, paperForms,   runtime::Locale::Spanish()};
  Environment world{realPrinting, dialogs, folders, processes};
  data::PickerMenus menus;
};

}  // namespace qm::designer::win32
