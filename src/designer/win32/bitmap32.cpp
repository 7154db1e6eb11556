#include "designer/win32/bitmap32.h"

#include <algorithm>
#include <cstring>

#include "designer/win32/window.h"
#include "platform/win32/errors.h"

namespace qm::designer::win32 {
namespace {

Pixel Mixed(Pixel under, Pixel over, int percent) {
  Pixel mixed = 0xFF000000U;
  for (const int shift : {0, 8, 16}) {
    const auto below = static_cast<int>(under >> shift & 0xFFU);
    const auto above = static_cast<int>(over >> shift & 0xFFU);
    mixed |= static_cast<Pixel>(below + (above - below) * percent / 100) << shift;
  }
  return mixed;
}

}  // namespace

Bitmap32::Bitmap32(int width, int height) : width_(std::max(1, width)), height_(std::max(1, height)) {
  BITMAPINFO description{};
  description.bmiHeader.biSize = sizeof description.bmiHeader;
  description.bmiHeader.biWidth = width_;
  description.bmiHeader.biHeight = -height_;  // the top row first
  description.bmiHeader.biPlanes = 1;
  description.bmiHeader.biBitCount = 32;
  description.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  handle_.Reset(CreateDIBSection(nullptr, &description, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!handle_ || !bits) platform::win32::Throw(runtime::ErrorNumber::OutOfMemory);
  bits_ = static_cast<Pixel*>(bits);
}

RECT Bitmap32::Within(const RECT& area) const {
  return {std::clamp<LONG>(area.left, 0, width_), std::clamp<LONG>(area.top, 0, height_),
          std::clamp<LONG>(area.right, 0, width_), std::clamp<LONG>(area.bottom, 0, height_)};
}

void Bitmap32::Fill(const RECT& area, Pixel pixel) {
  const RECT inside = Within(area);
  for (LONG y = inside.top; y < inside.bottom; ++y)
    std::fill(Row(y) + inside.left, Row(y) + std::max(inside.left, inside.right), pixel);
}

void Bitmap32::Tint(const RECT& area, Pixel pixel, int percent) {
  const RECT inside = Within(area);
  for (LONG y = inside.top; y < inside.bottom; ++y)
    for (LONG x = inside.left; x < inside.right; ++x) Row(y)[x] = Mixed(Row(y)[x], pixel, percent);
}

void Bitmap32::Copy(const Bitmap32& from, POINT corner, const RECT& area) {
  RECT part = Within(area);
  const RECT other{corner.x, corner.y, corner.x + from.Width(), corner.y + from.Height()};
  if (!IntersectRect(&part, &part, &other)) return;
  const auto bytes = static_cast<std::size_t>(WidthOf(part)) * sizeof(Pixel);
  for (LONG y = part.top; y < part.bottom; ++y)
    std::memcpy(Row(y) + part.left, from.Row(y - corner.y) + (part.left - corner.x), bytes);
}

void Bitmap32::Outline(const RECT& area, Pixel pixel, bool dotted) {
  const auto put = [&](LONG x, LONG y) {
    if (x >= 0 && x < width_ && y >= 0 && y < height_ && (!dotted || (x + y) % 2 == 0)) Row(y)[x] = pixel;
  };
  const RECT inside = Within(area);
  for (LONG x = inside.left; x < inside.right; ++x) {
    put(x, area.top);
    put(x, area.bottom - 1);
  }
  for (LONG y = inside.top; y < inside.bottom; ++y) {
    put(area.left, y);
    put(area.right - 1, y);
  }
}

}  // namespace qm::designer::win32
