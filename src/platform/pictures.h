#pragma once
// Pictures from files, scaled copies, and the clipboard as a place for one.
// Units:  pixels where a name says so; a picture's own size is twips at 15 twips per pixel.
// Errors: RuntimeError 481 for a file or bytes that are no picture or a huge one, 7 for one that memory has
//         no room for, 57 for a clipboard that cannot be opened.
// Implemented by win32/pictures and the tests' FakePictures.

#include <memory>
#include <string_view>

namespace qm::platform {

class Picture {
 public:
  virtual ~Picture() = default;

  [[nodiscard]] virtual int WidthPixels() const = 0;
  [[nodiscard]] virtual int HeightPixels() const = 0;
};

class Pictures {
 public:
  virtual ~Pictures() = default;

  // BMP, GIF, JPEG and the other formats of the system's picture loader.
  [[nodiscard]] virtual std::unique_ptr<Picture> Load(std::u16string_view path) = 0;
  // The same of a file's bytes.
  [[nodiscard]] virtual std::unique_ptr<Picture> Decode(std::string_view bytes) = 0;
  [[nodiscard]] virtual std::unique_ptr<Picture> Scaled(const Picture& picture, int widthPixels,
                                                        int heightPixels) = 0;
  // Empties the clipboard, leaves the picture there as a bitmap and gives that bitmap back. No other program
  // comes between: what is given back is never somebody else's.
  [[nodiscard]] virtual std::unique_ptr<Picture> ThroughClipboard(const Picture& picture) = 0;
};

}  // namespace qm::platform
