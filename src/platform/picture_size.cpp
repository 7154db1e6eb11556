#include "platform/picture_size.h"

#include <cstddef>

namespace qm::platform {

namespace {

constexpr std::int64_t kMostPixels = 150'000'000;  // a sheet of A4 at 1200 dots per inch has 139 million

// The bytes of a file by place; places beyond its end are asked for beforehand.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

  [[nodiscard]] bool Has(std::size_t place, std::size_t count) const {
    return count <= bytes_.size() && place <= bytes_.size() - count;
  }
  [[nodiscard]] std::uint32_t At(std::size_t place) const { return static_cast<std::uint8_t>(bytes_[place]); }
  [[nodiscard]] std::uint32_t LittleWord(std::size_t place) const { return At(place) | At(place + 1) << 8; }
  [[nodiscard]] std::uint32_t BigWord(std::size_t place) const { return At(place) << 8 | At(place + 1); }
  [[nodiscard]] std::int32_t LittleLong(std::size_t place) const {
    return static_cast<std::int32_t>(LittleWord(place) | LittleWord(place + 2) << 16);
  }

 private:
  std::string_view bytes_;
};

std::optional<PixelSize> SizeOfBmp(const Bytes& bytes) {
  constexpr std::size_t kInfo = 14;
  constexpr std::int32_t kOldInfoLength = 12;
  if (!bytes.Has(kInfo, 12)) return std::nullopt;
  if (bytes.LittleLong(kInfo) == kOldInfoLength)
    return PixelSize{bytes.LittleWord(kInfo + 4), bytes.LittleWord(kInfo + 6)};
  const std::int64_t height = bytes.LittleLong(kInfo + 8);
  return PixelSize{bytes.LittleLong(kInfo + 4),
                   height < 0 ? -height : height};  // negative: the top row first
}

std::optional<PixelSize> SizeOfGif(const Bytes& bytes) {
  if (!bytes.Has(6, 4)) return std::nullopt;
  const PixelSize size{bytes.LittleWord(6), bytes.LittleWord(8)};
  if (size.width == 0 || size.height == 0) return std::nullopt;  // its frames say it
  return size;
}

bool StandsAlone(std::uint32_t marker) { return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8); }
bool BeginsFrame(std::uint32_t marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::optional<PixelSize> SizeOfJpeg(const Bytes& bytes) {
  constexpr std::uint32_t kEnd = 0xD9;
  constexpr std::uint32_t kScan = 0xDA;
  std::size_t place = 2;
  while (bytes.Has(place, 2) && bytes.At(place) == 0xFF) {
    const std::uint32_t marker = bytes.At(place + 1);
    if (marker == kEnd || marker == kScan) break;
    if (marker == 0xFF) {  // filling
      ++place;
      continue;
    }
    place += 2;
    if (StandsAlone(marker)) continue;
    if (BeginsFrame(marker)) {
      if (!bytes.Has(place, 7)) break;
      return PixelSize{bytes.BigWord(place + 5), bytes.BigWord(place + 3)};
    }
    if (!bytes.Has(place, 2)) break;
    place += bytes.BigWord(place);
  }
  return std::nullopt;
}

}  // namespace

std::optional<PixelSize> SizeInHeader(std::string_view bytes) {
  if (bytes.starts_with("BM")) return SizeOfBmp(Bytes(bytes));
  if (bytes.starts_with("GIF8")) return SizeOfGif(Bytes(bytes));
  if (bytes.starts_with("\xFF\xD8")) return SizeOfJpeg(Bytes(bytes));
  return std::nullopt;
}

bool IsWithinMeans(const PixelSize& size) {
  return size.width > 0 && size.height > 0 && size.width <= kMostPixels && size.height <= kMostPixels &&
         size.width * size.height <= kMostPixels;
}

}  // namespace qm::platform
