#pragma once
// The background picture and the logo: choosing them, keeping them in the image folder, sizing the logo, and
// editing the background in the paint program.
// Units:  twips in the layout, centimetres in the size dialog.
// Errors: pictures that cannot be loaded and a paint program that does not start are told to the user; a
//         picture that cannot be copied is an error of platform/files.h, and the layout stays as it was.

#include <optional>
#include <string>
#include <string_view>

#include "designer/document.h"
#include "designer/environment.h"

namespace qm::designer {

class Images {
 public:
  Images(const Environment& environment, Document& document)
      : environment_(environment), document_(document) {}

  void InsertaImagen();  // the background
  void Logotipo();
  void EliminarFondo();  // from the page; its file stays
  void EditImagen();
  void Fotx_DblClick();

  // Null, after a message, where the picture cannot be loaded.
  [[nodiscard]] PicturePointer LoadOrTell(const std::u16string& path);
  // A name from the model: bare ones lie in the image folder.
  [[nodiscard]] std::u16string PathOf(std::u16string_view name) const;

 private:
  // A picture that lies in the image folder under its bare name.
  struct Kept {
    std::u16string name;
    PicturePointer picture;
  };

  [[nodiscard]] std::optional<std::u16string> AskFile();
  // Nothing, after a message, where it cannot be loaded; then nothing was copied.
  [[nodiscard]] std::optional<Kept> Keep(const std::u16string& path);

  Environment environment_;
  Document& document_;
};

}  // namespace qm::designer
