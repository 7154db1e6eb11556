#pragma once
// A bitmap whose pixels are at hand and on which Windows draws as well.
// Units:  pixels; rows from top to bottom, a pixel as 0xAARRGGBB.
// Errors: RuntimeError 7 for a size that memory has no room for.

#include <cstdint>

#include "platform/win32/handles.h"

namespace qm::designer::win32 {

using Pixel = std::uint32_t;

[[nodiscard]] constexpr Pixel PixelOf(COLORREF color) {
  return 0xFF000000U | (color & 0xFFU) << 16 | (color & 0xFF00U) | (color >> 16 & 0xFFU);
}

class Bitmap32 {
 public:
  Bitmap32(int width, int height);

  [[nodiscard]] int Width() const { return width_; }
  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] HBITMAP Handle() const { return handle_.Get(); }
  [[nodiscard]] Pixel* Row(int y) { return bits_ + static_cast<std::size_t>(y) * Stride(); }
  [[nodiscard]] const Pixel* Row(int y) const { return bits_ + static_cast<std::size_t>(y) * Stride(); }

  // Both within the bitmap's own bounds, whatever the area.
  void Fill(const RECT& area, Pixel pixel);
  void Tint(const RECT& area, Pixel pixel, int percent);
  // The part of another bitmap, whose corner lies at that place here, that falls into the area.
  void Copy(const Bitmap32& from, POINT corner, const RECT& area);
  // A line of one pixel around the area, inside it; of every other pixel where it is dotted.
  void Outline(const RECT& area, Pixel pixel, bool dotted);

 private:
  [[nodiscard]] std::size_t Stride() const { return static_cast<std::size_t>(width_); }
  [[nodiscard]] RECT Within(const RECT& area) const;

  int width_;
  int height_;
  platform::win32::OwnedBitmap handle_;
  Pixel* bits_ = nullptr;  // of the handle's
};

}  // namespace qm::designer::win32
