#include "platform/pdf_image.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "platform/deflater.h"
#include "platform/run_lengths.h"

namespace qm::platform {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kBytesAPixel = 3;

const std::uint8_t* Row(const PageImage& image, int y) { return image.topRow + y * image.stride; }

// 0x00RRGGBB.
std::uint32_t ColorAt(const std::uint8_t* pixel) {
  return static_cast<std::uint32_t>(pixel[0] | pixel[1] << 8 | pixel[2] << 16);
}

// Up to 256 colours in the order of their first use, after white.
class Palette {
 public:
  static constexpr int kFull = -1;
  static constexpr std::uint8_t kWhite = 0;  // its index

  Palette() { (void)IndexOf(0xFFFFFF); }

  [[nodiscard]] int IndexOf(std::uint32_t color) {
    std::size_t slot = color * 2654435761U >> 22;
    while (slots_[slot] != 0) {
      const int index = slots_[slot] - 1;
      if (colors_[static_cast<std::size_t>(index)] == color) return index;
      slot = (slot + 1) % slots_.size();
    }
    if (count_ == colors_.size()) return kFull;
    colors_[count_] = color;
    slots_[slot] = static_cast<std::uint16_t>(++count_);
    return static_cast<int>(count_) - 1;
  }

  [[nodiscard]] std::string AsHexadecimal() const {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    for (std::size_t i = 0; i < count_; ++i) {
      for (const int shift : {20, 16, 12, 8, 4, 0}) text += kDigits[colors_[i] >> shift & 15U];
    }
    return text;
  }
  [[nodiscard]] std::size_t Count() const { return count_; }

 private:
  std::array<std::uint32_t, 256> colors_{};
  std::array<std::uint16_t, 1024> slots_{};  // index + 1; 0 is free
  std::size_t count_ = 0;
};

// False when the row needs more colours than there is room for.
bool IndexRow(const std::uint8_t* row, Palette& palette, Bytes& indexes) {
  std::uint32_t last = ColorAt(row);
  int index = palette.IndexOf(last);
  for (std::uint8_t& place : indexes) {
    const std::uint32_t color = ColorAt(row);
    if (color != last) index = palette.IndexOf(last = color);
    if (index == Palette::kFull) return false;
    place = static_cast<std::uint8_t>(index);
    row += kBytesAPixel;
  }
  return true;
}

// Without an early end, so that the compiler makes it a few wide instructions; most rows are white.
bool IsWhite(const std::uint8_t* row, std::size_t count) {
  std::uint8_t all = 0xFF;
  for (std::size_t i = 0; i < count; ++i) all &= row[i];
  return all == 0xFF;
}

std::optional<PdfImage> Indexed(const PageImage& image) {
  constexpr int kLevel = 5;
  const auto width = static_cast<std::size_t>(image.width);
  Bytes indexes(width);
  Palette palette;
  RunLengths runs;
  for (int y = 0; y < image.height; ++y) {
    const std::uint8_t* row = Row(image, y);
    if (IsWhite(row, width * kBytesAPixel)) {
      runs.AddRun(Palette::kWhite, width);
    } else if (IndexRow(row, palette, indexes)) {
      runs.Add(indexes.data(), width);
    } else {
      return std::nullopt;
    }
  }
  return PdfImage{"/Filter[/FlateDecode/RunLengthDecode]/ColorSpace[/Indexed/DeviceRGB " +
                      std::to_string(palette.Count() - 1) + "<" + palette.AsHexadecimal() + ">]",
                  Deflated(runs.Finish(), kLevel)};
}

// Each pixel as its difference from the one at its left, which shrinks photographs.
PdfImage TrueColor(const PageImage& image) {
  constexpr int kLevel = 4;
  constexpr std::uint8_t kSub = 1;
  const auto width = static_cast<std::size_t>(image.width);
  Bytes line(1 + width * kBytesAPixel);
  line[0] = kSub;
  Deflater deflater(kLevel);
  for (int y = 0; y < image.height; ++y) {
    const std::uint8_t* pixel = Row(image, y);
    std::array<std::uint8_t, kBytesAPixel> left{};
    for (std::size_t i = 1; i < line.size(); i += kBytesAPixel, pixel += kBytesAPixel) {
      for (std::size_t channel = 0; channel < kBytesAPixel; ++channel) {
        const std::uint8_t value = pixel[kBytesAPixel - 1 - channel];
        line[i + channel] = static_cast<std::uint8_t>(value - left[channel]);
        left[channel] = value;
      }
    }
    deflater.Write(line.data(), line.size());
  }
  return {"/Filter/FlateDecode/ColorSpace/DeviceRGB/DecodeParms<</Predictor 15/Colors 3/Columns " +
              std::to_string(width) + ">>",
          deflater.Finish()};
}

}  // namespace

PdfImage PdfImageOf(const PageImage& image) {
  auto indexed = Indexed(image);
  PdfImage result = indexed ? std::move(*indexed) : TrueColor(image);
  result.entries = "/Type/XObject/Subtype/Image/Width " + std::to_string(image.width) + "/Height " +
                   std::to_string(image.height) + "/BitsPerComponent 8" + result.entries;
  return result;
}

}  // namespace qm::platform
