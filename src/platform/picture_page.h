#pragma once
// A hidden drawing surface whose page is a picture, and what was written on it.
// Units:  pixels of 15 twips; texts in twips.
// Errors: RuntimeError 7 for a page that memory has no room for.
// Implemented by win32/picture_surface and the tests' FakePicturePage.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/surface.h"

namespace qm::platform {

// Pixels of 24 bits (blue, green, red), the top row first. They belong to the page.
struct PageImage {
  int width = 0;
  int height = 0;
  std::ptrdiff_t stride = 0;  // bytes from a row to the one below; negative for a picture kept bottom up
  const std::uint8_t* topRow = nullptr;
};

class PicturePage : public Surface {
 public:
  [[nodiscard]] virtual PageImage Image() = 0;       // empty before a page size was set
  [[nodiscard]] virtual std::string BmpBytes() = 0;  // the page as a Windows bitmap file
};

// Makes a new, cleared page.
class PicturePages {
 public:
  virtual ~PicturePages() = default;
  [[nodiscard]] virtual std::unique_ptr<PicturePage> New() = 0;
};

}  // namespace qm::platform
