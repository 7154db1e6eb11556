#include "platform/win32/bitmap.h"

#include <cstring>

#include "platform/win32/errors.h"

namespace qm::platform::win32 {
namespace {

constexpr std::int64_t kLargestSide = 32767;  // of the drawing functions' own coordinates
constexpr std::int64_t kLargestBytes = std::int64_t{1} << 30;
constexpr LONG kPixelsPerMetre = 3780;  // 96 dots per inch

BITMAPINFOHEADER HeaderOf(int width, int height) {
  BITMAPINFOHEADER header{};
  header.biSize = sizeof header;
  header.biWidth = width;
  header.biHeight = height;
  header.biPlanes = 1;
  header.biBitCount = 24;
  header.biCompression = BI_RGB;
  header.biXPelsPerMeter = kPixelsPerMetre;
  header.biYPelsPerMeter = kPixelsPerMetre;
  return header;
}

const BITMAPINFO& InfoOf(const BITMAPINFOHEADER& header) {
  return reinterpret_cast<const BITMAPINFO&>(header);  // 24 bits a pixel have no colour table
}

template <typename Structure>
void Append(std::string& bytes, const Structure& structure) {
  bytes.append(reinterpret_cast<const char*>(&structure), sizeof structure);
}

}  // namespace

Bitmap24::Bitmap24(std::int64_t width, std::int64_t height) {
  if (width < 1 || height < 1 || width > kLargestSide || height > kLargestSide)
    Throw(runtime::ErrorNumber::OutOfMemory);
  const std::int64_t stride = (width * 3 + 3) / 4 * 4;
  if (stride * height > kLargestBytes) Throw(runtime::ErrorNumber::OutOfMemory);
  width_ = static_cast<int>(width);
  height_ = static_cast<int>(height);
  stride_ = static_cast<std::size_t>(stride);
  const BITMAPINFOHEADER header = HeaderOf(width_, height_);
  void* bits = nullptr;
  handle_.Reset(CreateDIBSection(nullptr, &InfoOf(header), DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!handle_ || !bits) Throw(runtime::ErrorNumber::OutOfMemory);
  bits_ = static_cast<std::uint8_t*>(bits);
  std::memset(bits_, 0xFF, stride_ * static_cast<std::size_t>(height_));
}

const std::uint8_t* Bitmap24::Row(int y) const {
  return bits_ + static_cast<std::size_t>(height_ - 1 - y) * stride_;
}

bool Bitmap24::PaintOn(HDC dc, int x, int y, int width, int height) const {
  GdiFlush();  // drawing on the bitmap may still be under way
  const BITMAPINFOHEADER header = HeaderOf(width_, height_);
  const int former = SetStretchBltMode(dc, HALFTONE);
  SetBrushOrgEx(dc, 0, 0, nullptr);
  const int lines = StretchDIBits(dc, x, y, width, height, 0, 0, width_, height_, bits_, &InfoOf(header),
                                  DIB_RGB_COLORS, SRCCOPY);
  if (former) SetStretchBltMode(dc, former);
  return lines > 0;
}

std::string Bitmap24::BmpBytes() const {
  GdiFlush();
  const std::size_t pixelBytes = stride_ * static_cast<std::size_t>(height_);
  BITMAPFILEHEADER file{};
  BITMAPINFOHEADER header = HeaderOf(width_, height_);
  header.biSizeImage = static_cast<DWORD>(pixelBytes);
  file.bfType = 0x4D42;  // "BM"
  file.bfOffBits = sizeof file + sizeof header;
  file.bfSize = static_cast<DWORD>(file.bfOffBits + pixelBytes);
  std::string bytes;
  bytes.reserve(file.bfSize);
  Append(bytes, file);
  Append(bytes, header);
  bytes.append(reinterpret_cast<const char*>(bits_), pixelBytes);
  return bytes;
}

}  // namespace qm::platform::win32
