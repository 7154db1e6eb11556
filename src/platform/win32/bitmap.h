#pragma once
// A bitmap of 24 bits a pixel whose pixels are at hand.
// Units:  pixels; rows from top to bottom, each of Stride() bytes, a pixel as blue, green, red.
// Errors: RuntimeError 7 for a size that memory has no room for.

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/win32/handles.h"

namespace qm::platform::win32 {

class Bitmap24 {
 public:
  Bitmap24(std::int64_t width, std::int64_t height);  // white

  [[nodiscard]] int Width() const { return width_; }
  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] std::size_t Stride() const { return stride_; }
  [[nodiscard]] const std::uint8_t* Row(int y) const;
  [[nodiscard]] HBITMAP Handle() const { return handle_.Get(); }

  // Copies the pixels to a device, stretched to the size given in its units.
  [[nodiscard]] bool PaintOn(HDC dc, int x, int y, int width, int height) const;
  // A BMP file of 96 dots per inch.
  [[nodiscard]] std::string BmpBytes() const;

 private:
  int width_ = 0;
  int height_ = 0;
  std::size_t stride_ = 0;
  OwnedBitmap handle_;
  std::uint8_t* bits_ = nullptr;  // of the handle's; the bottom row first
};

// A bitmap selected into a memory device context of its own, to be drawn on.
class BitmapDc {
 public:
  explicit BitmapDc(HBITMAP bitmap) : dc_(CreateCompatibleDC(nullptr)), selected_(dc_.Get(), bitmap) {}
  [[nodiscard]] HDC Get() const { return dc_.Get(); }

 private:
  OwnedDc dc_;
  SelectedObject selected_;
};

}  // namespace qm::platform::win32
