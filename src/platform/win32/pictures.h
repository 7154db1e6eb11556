#pragma once
// Pictures as bitmaps of 24 bits a pixel, through the system's picture loader. What a picture leaves
// transparent is white.

#include "platform/pictures.h"
#include "platform/win32/bitmap.h"

namespace qm::platform::win32 {

class BitmapPicture : public Picture {
 public:
  explicit BitmapPicture(Bitmap24 bitmap) : bitmap_(std::move(bitmap)) {}

  [[nodiscard]] int WidthPixels() const override { return bitmap_.Width(); }
  [[nodiscard]] int HeightPixels() const override { return bitmap_.Height(); }
  [[nodiscard]] const Bitmap24& Bitmap() const { return bitmap_; }

 private:
  Bitmap24 bitmap_;
};

// The bitmap of a picture made here; error 481 for one of another maker.
[[nodiscard]] const Bitmap24& BitmapOf(const Picture& picture);

class Win32Pictures : public Pictures {
 public:
  // Error 53 for a file that does not exist.
  [[nodiscard]] std::unique_ptr<Picture> Load(std::u16string_view path) override;
  [[nodiscard]] std::unique_ptr<Picture> Decode(std::string_view bytes) override;
  // A size that is not positive keeps the picture's own, as the bitmap copy of Windows does with 0.
  [[nodiscard]] std::unique_ptr<Picture> Scaled(const Picture& picture, int widthPixels,
                                                int heightPixels) override;
  [[nodiscard]] std::unique_ptr<Picture> ThroughClipboard(const Picture& picture) override;
};

}  // namespace qm::platform::win32
